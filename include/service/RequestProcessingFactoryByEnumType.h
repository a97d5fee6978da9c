#pragma once

#include <memory>

#include "service/RequestProcessor.h"
#include "service/Requisition.h"

// Gives the processor of a request frame's type.
class RequestProcessingFactoryByEnumType {
 public:
  // Throws std::invalid_argument "RequestProcessingFactoryByEnumType::make(): invalid tlvType"
  // for a type outside 0 to 11.
  static std::unique_ptr<RequestProcessor> make(const Requisition& requisition);
};
