#pragma once

#include "service/RequestProcessor.h"

// The processors of the reply types: a reply sent as a request is answered with nothing, and
// process() gives "<error>". They make the factory total over the frame types.
class ResponseRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override { return false; }
};

class ResponseToOpenExecuteAndReturnResultsRequestProcessor : public ResponseRequestProcessor {
  using ResponseRequestProcessor::ResponseRequestProcessor;
};
class ResponseListOfAvailableRequestProcessor : public ResponseRequestProcessor {
  using ResponseRequestProcessor::ResponseRequestProcessor;
};
class ResponseToSceneryNetworkRequestProcessor : public ResponseRequestProcessor {
  using ResponseRequestProcessor::ResponseRequestProcessor;
};
class ResponseSerieOfElementRequestProcessor : public ResponseRequestProcessor {
  using ResponseRequestProcessor::ResponseRequestProcessor;
};
class ResponseModifySerieOfElementRequestProcessor : public ResponseRequestProcessor {
  using ResponseRequestProcessor::ResponseRequestProcessor;
};
class ResponseProjectRequestProcessor : public ResponseRequestProcessor {
  using ResponseRequestProcessor::ResponseRequestProcessor;
};
