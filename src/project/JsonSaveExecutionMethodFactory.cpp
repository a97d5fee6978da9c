#include "project/JsonSaveExecutionMethodFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveExecutionGuaranteeCurve.h"
#include "project/JsonSaveExecutionOptimization.h"
#include "project/JsonSaveExecutionSystemGuaranteeCurve.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonSaveExecutionMethod>(
    const std::shared_ptr<ExecutionMethod>&)>;

std::shared_ptr<JsonSaveExecutionMethod> makeCommonOnly(
    const std::shared_ptr<ExecutionMethod>& method) {
  return std::make_shared<JsonSaveExecutionMethod>(method);
}

std::shared_ptr<JsonSaveExecutionMethod> makeGuaranteeCurve(
    const std::shared_ptr<ExecutionMethod>& method) {
  return std::make_shared<JsonSaveExecutionGuaranteeCurve>(method);
}

std::shared_ptr<JsonSaveExecutionMethod> makeSystemGuaranteeCurve(
    const std::shared_ptr<ExecutionMethod>& method) {
  return std::make_shared<JsonSaveExecutionSystemGuaranteeCurve>(method);
}

std::shared_ptr<JsonSaveExecutionMethod> makeOptimization(
    const std::shared_ptr<ExecutionMethod>& method) {
  return std::make_shared<JsonSaveExecutionOptimization>(method);
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {Vocabulary::of(ExecutionType::continuous).getName(), makeCommonOnly},
          {Vocabulary::of(ExecutionType::windowed).getName(), makeCommonOnly},
          {Vocabulary::of(ExecutionType::optimization).getName(), makeOptimization},
          {Vocabulary::of(ExecutionType::guaranteeCurve).getName(), makeGuaranteeCurve},
          {Vocabulary::of(ExecutionType::systemGuaranteeCurve).getName(), makeSystemGuaranteeCurve},
      },
      "JsonSaveExecutionMethodFactory::make(): invalid ExecutionType");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveExecutionMethod> JsonSaveExecutionMethodFactory::make(
    const std::shared_ptr<ExecutionMethod>& method) {
  return makers().at(method->getExecutionType().getName())(method);
}

std::vector<std::string> JsonSaveExecutionMethodFactory::keys() { return makers().keys(); }
