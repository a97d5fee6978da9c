#pragma once

#include "vocabulary/Enum.h"
#include "vocabulary/EnumTable.h"

// The regression models a release rule can learn.
enum class MachineLearningRegressionAlgorithmType : int32_t {
  knn = 0,
  regressionTree = 1,
  randomForest = 2,
};

enum class MachineLearningRegressionDistanceCalculatorType : int32_t {
  euclidean = 0,
  manhattan = 1,
};

// How the entries a model picks are averaged into its answer; the weighted ones weigh an entry by
// the inverse of its distance to the query.
enum class MachineLearningRegressionAverageCalculatorType : int32_t {
  arithmetic = 0,
  geometric = 1,
  harmonic = 2,
  weightedArithmetic = 3,
  weightedGeometric = 4,
  weightedHarmonic = 5,
};

enum class MachineLearningRegressionErrorType : int32_t {
  meanSquaredError = 0,
  nashSutcliffeEfficiency = 1,
};

enum class MachineLearningAlgorithmValidatorType : int32_t {
  kFoldCrossValidation = 0,
  holdout = 1,
};

// How a reservoir of a scenario by priorities becomes a rule: the run's releases as a series
// (the default) or a model trained on the run.
enum class ConfigureRuleElementType : int32_t {
  defaultSerie = 0,
  knn = 1,
  regressionTree = 2,
  randomForest = 3,
};

// The display names of the machine-learning settings, as the project file stores them.
class MachineLearningVocabulary {
 public:
  using AlgorithmTypes = EnumTable<Enum<MachineLearningRegressionAlgorithmType>,
                                   MachineLearningRegressionAlgorithmType>;
  using DistanceTypes = EnumTable<Enum<MachineLearningRegressionDistanceCalculatorType>,
                                  MachineLearningRegressionDistanceCalculatorType>;
  using AverageTypes = EnumTable<Enum<MachineLearningRegressionAverageCalculatorType>,
                                 MachineLearningRegressionAverageCalculatorType>;
  using ErrorTypes =
      EnumTable<Enum<MachineLearningRegressionErrorType>, MachineLearningRegressionErrorType>;
  using ValidatorTypes =
      EnumTable<Enum<MachineLearningAlgorithmValidatorType>, MachineLearningAlgorithmValidatorType>;
  using ConfigureRuleTypes = EnumTable<Enum<ConfigureRuleElementType>, ConfigureRuleElementType>;

  static const AlgorithmTypes& algorithmTypes();
  static const DistanceTypes& distanceTypes();
  static const AverageTypes& averageTypes();
  static const ErrorTypes& errorTypes();
  static const ValidatorTypes& validatorTypes();
  // "Padrão", then the names of the three models.
  static const ConfigureRuleTypes& configureRuleTypes();

  static const Enum<MachineLearningRegressionAlgorithmType>& of(
      MachineLearningRegressionAlgorithmType type);
  static const Enum<MachineLearningRegressionDistanceCalculatorType>& of(
      MachineLearningRegressionDistanceCalculatorType type);
  static const Enum<MachineLearningRegressionAverageCalculatorType>& of(
      MachineLearningRegressionAverageCalculatorType type);
  static const Enum<MachineLearningRegressionErrorType>& of(
      MachineLearningRegressionErrorType type);
  static const Enum<MachineLearningAlgorithmValidatorType>& of(
      MachineLearningAlgorithmValidatorType type);
  static const Enum<ConfigureRuleElementType>& of(ConfigureRuleElementType type);
};
