#include "service/RequestProcessingFactoryByEnumType.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "service/EnumTlvType.h"
#include "service/OpenExecuteAndReturnResultsRequestProcessor.h"
#include "service/RequestListAvailableRequestProcessor.h"
#include "service/RequestModifySerieOfElementRequestProcessor.h"
#include "service/RequestProjectRequestProcessor.h"
#include "service/RequestSceneryNetworkRequestProcessor.h"
#include "service/RequestSerieOfElementRequestProcessor.h"
#include "service/ResponseRequestProcessors.h"

namespace {

using Maker = std::function<std::unique_ptr<RequestProcessor>(const Requisition&)>;

template <typename Processor>
Maker maker() {
  return [](const Requisition& requisition) { return std::make_unique<Processor>(requisition); };
}

const std::map<TlvType, Maker>& makers() {
  static const std::map<TlvType, Maker> table{
      {TlvType::openExecuteAndReturnResults, maker<OpenExecuteAndReturnResultsRequestProcessor>()},
      {TlvType::responseToOpenExecuteAndReturnResults,
       maker<ResponseToOpenExecuteAndReturnResultsRequestProcessor>()},
      {TlvType::requestListAvailable, maker<RequestListAvailableRequestProcessor>()},
      {TlvType::responseListOfAvailable, maker<ResponseListOfAvailableRequestProcessor>()},
      {TlvType::requestSceneryNetwork, maker<RequestSceneryNetworkRequestProcessor>()},
      {TlvType::responseToSceneryNetwork, maker<ResponseToSceneryNetworkRequestProcessor>()},
      {TlvType::requestSerieOfElement, maker<RequestSerieOfElementRequestProcessor>()},
      {TlvType::responseSerieOfElement, maker<ResponseSerieOfElementRequestProcessor>()},
      {TlvType::requestModifySerieOfElement, maker<RequestModifySerieOfElementRequestProcessor>()},
      {TlvType::responseModifySerieOfElement,
       maker<ResponseModifySerieOfElementRequestProcessor>()},
      {TlvType::requestProject, maker<RequestProjectRequestProcessor>()},
      {TlvType::responseProject, maker<ResponseProjectRequestProcessor>()},
  };
  return table;
}

}  // namespace

std::unique_ptr<RequestProcessor> RequestProcessingFactoryByEnumType::make(
    const Requisition& requisition) {
  const auto found = makers().find(static_cast<TlvType>(requisition.getTlv().getType()));
  if (found == makers().end()) {
    throw std::invalid_argument("RequestProcessingFactoryByEnumType::make(): invalid tlvType");
  }
  return found->second(requisition);
}
