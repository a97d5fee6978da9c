#include "service/EnumTlvTypeFactoryByIntegerType.h"

#include <stdexcept>

#include "vocabulary/EnumTable.h"

namespace {

const EnumTable<EnumTlvType, TlvType>& table() {
  static const EnumTable<EnumTlvType, TlvType> rows({
      {TlvType::openExecuteAndReturnResults, "Abrir, executar e retornar resultados de projeto"},
      {TlvType::responseToOpenExecuteAndReturnResults,
       "Resposta para Abrir, executar e retornar resultados de projeto"},
      {TlvType::requestListAvailable, "Requisitar lista de projetos disponíveis"},
      {TlvType::responseListOfAvailable, "Responder com lista de projetos disponíveis"},
      {TlvType::requestSceneryNetwork, "Requisitar desenho de rede de um cenario"},
      {TlvType::responseToSceneryNetwork, "Responder desenho de rede de um cenario"},
      {TlvType::requestSerieOfElement, "Requisitar serie de elemento"},
      {TlvType::responseSerieOfElement, "Responder serie de elemento"},
      {TlvType::requestModifySerieOfElement, "Requisitar alt. em serie de elemento"},
      {TlvType::responseModifySerieOfElement, "Responder alt. serie de elemento"},
      {TlvType::requestProject, "Requisitar project"},
      {TlvType::responseProject, "Responder projeto"},
  });
  return rows;
}

}  // namespace

EnumTlvType EnumTlvTypeFactoryByIntegerType::make(int tlvTypeAsInteger) {
  const EnumTlvType* row = table().findByType(static_cast<TlvType>(tlvTypeAsInteger));
  if (row == nullptr) {
    throw std::invalid_argument("Error: invalid tlvTypeAsInteger.");
  }
  return *row;
}

EnumTlvType EnumTlvTypeFactoryByIntegerType::findByDescription(const std::string& description) {
  const EnumTlvType* row = table().findByName(description);
  if (row == nullptr) {
    throw std::invalid_argument(
        "EnumTlvTypeFactoryByIntegerType::findByDescription(): invalid description");
  }
  return *row;
}

std::vector<EnumTlvType> EnumTlvTypeFactoryByIntegerType::keys() { return table().getRows(); }
