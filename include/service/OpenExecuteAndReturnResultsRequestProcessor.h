#pragma once

#include "service/RequestProcessor.h"

// Type 0 {"code"?, "projname", "sceneries": [names]}: replies (type 1) with a zip archive of the
// CSV results (CSVWriteResults) of the latest stored run of each named scenario; nothing is run.
// A scenario without stored results gives its folder without files.
class OpenExecuteAndReturnResultsRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override;
};
