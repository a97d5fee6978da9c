#include "project/JsonLoadExecutionMethodFactory.h"

#include <functional>

#include "project/JsonLoadExecutionGuaranteeCurve.h"
#include "project/JsonLoadExecutionOptimization.h"
#include "project/JsonLoadExecutionSystemGuaranteeCurve.h"
#include "project/JsonMakerTable.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonLoadExecutionMethod>()>;

template <ExecutionType type>
std::shared_ptr<JsonLoadExecutionMethod> makeCommonOnly() {
  return std::make_shared<JsonLoadExecutionMethod>(type);
}

template <typename Reader>
std::shared_ptr<JsonLoadExecutionMethod> makeReader() {
  return std::make_shared<Reader>();
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {Vocabulary::of(ExecutionType::continuous).getName(),
           makeCommonOnly<ExecutionType::continuous>},
          {Vocabulary::of(ExecutionType::windowed).getName(),
           makeCommonOnly<ExecutionType::windowed>},
          {Vocabulary::of(ExecutionType::optimization).getName(),
           makeReader<JsonLoadExecutionOptimization>},
          {Vocabulary::of(ExecutionType::guaranteeCurve).getName(),
           makeReader<JsonLoadExecutionGuaranteeCurve>},
          {Vocabulary::of(ExecutionType::systemGuaranteeCurve).getName(),
           makeReader<JsonLoadExecutionSystemGuaranteeCurve>},
      },
      "JsonLoadExecutionMethodFactory::make(): invalid ExecutionType");
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadExecutionMethod> JsonLoadExecutionMethodFactory::make(
    const std::string& type) {
  return makers().at(type)();
}

std::vector<std::string> JsonLoadExecutionMethodFactory::keys() { return makers().keys(); }
