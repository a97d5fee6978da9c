#pragma once

#include "service/RequestProcessor.h"

// Type 6 {"code"?, "projname", "scenery", "elementid", "serietypename"}: replies (type 7) with
// the element's input series "Demanda" (SerieSaverAsJson); "serietypename" is read but this
// reply is always that series.
class RequestSerieOfElementRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override;
};
