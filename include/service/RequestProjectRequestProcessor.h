#pragma once

#include "service/RequestProcessor.h"

// Type 10 {"code"?, "projname"}: replies (type 11) with a zip archive of the project file and its
// database.
class RequestProjectRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override;
};
