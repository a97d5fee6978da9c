#pragma once

#include "service/RequestProcessor.h"

// Type 2: replies (type 3) with the projects of the service's folder and their scenarios.
class RequestListAvailableRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override;
};
