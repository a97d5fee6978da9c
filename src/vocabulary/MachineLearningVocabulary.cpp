#include "vocabulary/MachineLearningVocabulary.h"

#include <stdexcept>

namespace {

template <typename Table, typename Type>
const auto& rowOf(const Table& table, Type type) {
  const auto* row = table.findByType(type);
  if (row == nullptr) {
    throw std::invalid_argument("MachineLearningVocabulary::of(): value outside the vocabulary");
  }
  return *row;
}

}  // namespace

const MachineLearningVocabulary::AlgorithmTypes& MachineLearningVocabulary::algorithmTypes() {
  using A = MachineLearningRegressionAlgorithmType;
  static const AlgorithmTypes table({
      {A::knn, "K vizinhos mais próximos de regressão"},
      {A::regressionTree, "Árvore de regressão"},
      {A::randomForest, "Floresta aleatória de regressão"},
  });
  return table;
}

const MachineLearningVocabulary::DistanceTypes& MachineLearningVocabulary::distanceTypes() {
  using D = MachineLearningRegressionDistanceCalculatorType;
  static const DistanceTypes table({{D::euclidean, "Euclidean"}, {D::manhattan, "Manhattan"}});
  return table;
}

const MachineLearningVocabulary::AverageTypes& MachineLearningVocabulary::averageTypes() {
  using M = MachineLearningRegressionAverageCalculatorType;
  static const AverageTypes table({
      {M::arithmetic, "Média aritmética"},
      {M::geometric, "Média geométrica"},
      {M::harmonic, "Média harmônica"},
      {M::weightedArithmetic, "Média aritmética ponderada"},
      {M::weightedGeometric, "Média geométrica ponderada"},
      {M::weightedHarmonic, "Média harmônica ponderada"},
  });
  return table;
}

const MachineLearningVocabulary::ErrorTypes& MachineLearningVocabulary::errorTypes() {
  using E = MachineLearningRegressionErrorType;
  static const ErrorTypes table({
      {E::meanSquaredError, "Mean Squared Error"},
      {E::nashSutcliffeEfficiency, "Nash-Sutcliffe Efficiency"},
  });
  return table;
}

const MachineLearningVocabulary::ValidatorTypes& MachineLearningVocabulary::validatorTypes() {
  using V = MachineLearningAlgorithmValidatorType;
  static const ValidatorTypes table({
      {V::kFoldCrossValidation, "K-fold cross validation"},
      {V::holdout, "Holdout"},
  });
  return table;
}

const MachineLearningVocabulary::ConfigureRuleTypes&
MachineLearningVocabulary::configureRuleTypes() {
  using C = ConfigureRuleElementType;
  static const ConfigureRuleTypes table({
      {C::defaultSerie, "Padrão"},
      {C::knn, of(MachineLearningRegressionAlgorithmType::knn).getName()},
      {C::regressionTree, of(MachineLearningRegressionAlgorithmType::regressionTree).getName()},
      {C::randomForest, of(MachineLearningRegressionAlgorithmType::randomForest).getName()},
  });
  return table;
}

const Enum<MachineLearningRegressionAlgorithmType>& MachineLearningVocabulary::of(
    MachineLearningRegressionAlgorithmType type) {
  return rowOf(algorithmTypes(), type);
}

const Enum<MachineLearningRegressionDistanceCalculatorType>& MachineLearningVocabulary::of(
    MachineLearningRegressionDistanceCalculatorType type) {
  return rowOf(distanceTypes(), type);
}

const Enum<MachineLearningRegressionAverageCalculatorType>& MachineLearningVocabulary::of(
    MachineLearningRegressionAverageCalculatorType type) {
  return rowOf(averageTypes(), type);
}

const Enum<MachineLearningRegressionErrorType>& MachineLearningVocabulary::of(
    MachineLearningRegressionErrorType type) {
  return rowOf(errorTypes(), type);
}

const Enum<MachineLearningAlgorithmValidatorType>& MachineLearningVocabulary::of(
    MachineLearningAlgorithmValidatorType type) {
  return rowOf(validatorTypes(), type);
}

const Enum<ConfigureRuleElementType>& MachineLearningVocabulary::of(ConfigureRuleElementType type) {
  return rowOf(configureRuleTypes(), type);
}
