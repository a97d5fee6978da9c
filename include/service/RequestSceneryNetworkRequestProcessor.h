#pragma once

#include "service/RequestProcessor.h"

// Type 4 {"code"?, "projname", "scenery"}: replies (type 5) with the nodes and links of the
// scenario, each node at its stored coordinates ("lat" is y, "lon" is x).
class RequestSceneryNetworkRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override;
};
