#pragma once

#include "service/RequestProcessor.h"

// Type 8 {"code"?, "projname", "scenery", "elementid", "serietypename", "serie": {"values"}}:
// changes the element's input series "Demanda", stores the project and replies (type 9) "none".
// Served only when the host allows changes; any failure leaves the project files as they were.
class RequestModifySerieOfElementRequestProcessor : public RequestProcessor {
 public:
  using RequestProcessor::RequestProcessor;

 protected:
  bool serve() override;
};
