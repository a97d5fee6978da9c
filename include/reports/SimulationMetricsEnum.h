#pragma once

#include <cstdint>
#include <string>

#include "vocabulary/Enum.h"

// The kinds of simulation metric: ten on demands (0..9) and twelve on reservoirs (10..21). The
// display name of a kind is the name of its metric. "Frequencia abaixo do volume meta" is
// written without its accent: that is the text users know.
enum class SimulationMetricsTypeDefinition : int32_t {
  accumulatedVolumeOfDeficits = 0,
  averageFlowRateProvided = 1,
  averageFlowRateProvidedAsAPercentageOfRequiredDemand = 2,
  averageFlowRateProvidedWhenFailsOccur = 3,
  frequencyUnderNeededDemand = 4,
  maxTimeUnderNeededDemand = 5,
  minimumFlowProvided = 6,
  requiredAverageDemand = 7,
  totalTimeThatDemandIsMet = 8,
  totalTimeUnderNeededDemand = 9,
  emptyingFrequency = 10,
  frequencyUnderTargetVolumeInPercentage = 11,
  maxTimeOfEmptying = 12,
  maxTimeUnderTargetVolumeInMonths = 13,
  reliabilityToDemands = 14,
  reliabilityToReservoirs = 15,
  reliabilityToReservoirsAndDemands = 16,
  resilienceOfType1 = 17,
  resilienceOfType2 = 18,
  spillFrequency = 19,
  volumeAccumulatedSpill = 20,
  vulnerability = 21,
};

// A kind of simulation metric; one leaf class per kind.
class SimulationMetricsEnum : public Enum<SimulationMetricsTypeDefinition> {
 public:
  virtual ~SimulationMetricsEnum() = default;

 protected:
  SimulationMetricsEnum(SimulationMetricsTypeDefinition type, std::string name)
      : Enum(type, std::move(name)) {}
};

class AccumulatedVolumeOfDeficits : public SimulationMetricsEnum {
 public:
  AccumulatedVolumeOfDeficits()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::accumulatedVolumeOfDeficits,
                              "Volume acumulado dos déficits") {}
};

class AverageFlowRateProvided : public SimulationMetricsEnum {
 public:
  AverageFlowRateProvided()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::averageFlowRateProvided,
                              "Demanda média fornecida") {}
};

class AverageFlowRateProvidedAsAPercentageOfRequiredDemand : public SimulationMetricsEnum {
 public:
  AverageFlowRateProvidedAsAPercentageOfRequiredDemand()
      : SimulationMetricsEnum(
            SimulationMetricsTypeDefinition::averageFlowRateProvidedAsAPercentageOfRequiredDemand,
            "Demanda média fornecida (% da demanda média necessária)") {}
};

class AverageFlowRateProvidedWhenFailsOccur : public SimulationMetricsEnum {
 public:
  AverageFlowRateProvidedWhenFailsOccur()
      : SimulationMetricsEnum(
            SimulationMetricsTypeDefinition::averageFlowRateProvidedWhenFailsOccur,
            "Demanda média fornecida quando ocorrem falhas") {}
};

class FrequencyUnderNeededDemand : public SimulationMetricsEnum {
 public:
  FrequencyUnderNeededDemand()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::frequencyUnderNeededDemand,
                              "Frequência abaixo da demanda necessária") {}
};

class MaxTimeUnderNeededDemand : public SimulationMetricsEnum {
 public:
  MaxTimeUnderNeededDemand()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::maxTimeUnderNeededDemand,
                              "Tempo máximo abaixo da demanda necessária") {}
};

class MinimumFlowProvided : public SimulationMetricsEnum {
 public:
  MinimumFlowProvided()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::minimumFlowProvided,
                              "Vazão mínima fornecida") {}
};

class RequiredAverageDemand : public SimulationMetricsEnum {
 public:
  RequiredAverageDemand()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::requiredAverageDemand,
                              "Demanda média necessária") {}
};

class TotalTimeThatDemandIsMet : public SimulationMetricsEnum {
 public:
  TotalTimeThatDemandIsMet()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::totalTimeThatDemandIsMet,
                              "Tempo total que demanda é atendida") {}
};

class TotalTimeUnderNeededDemand : public SimulationMetricsEnum {
 public:
  TotalTimeUnderNeededDemand()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::totalTimeUnderNeededDemand,
                              "Tempo total abaixo da demanda necessária") {}
};

class EmptyingFrequency : public SimulationMetricsEnum {
 public:
  EmptyingFrequency()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::emptyingFrequency,
                              "Frequência de esvaziamento") {}
};

class FrequencyUnderTargetVolumeInPercentage : public SimulationMetricsEnum {
 public:
  FrequencyUnderTargetVolumeInPercentage()
      : SimulationMetricsEnum(
            SimulationMetricsTypeDefinition::frequencyUnderTargetVolumeInPercentage,
            "Frequencia abaixo do volume meta") {}
};

class MaxTimeOfEmptying : public SimulationMetricsEnum {
 public:
  MaxTimeOfEmptying()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::maxTimeOfEmptying,
                              "Tempo máximo de esvaziamento") {}
};

class MaxTimeUnderTargetVolumeInMonths : public SimulationMetricsEnum {
 public:
  MaxTimeUnderTargetVolumeInMonths()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::maxTimeUnderTargetVolumeInMonths,
                              "Tempo máximo abaixo do volume meta em meses") {}
};

class ReliabilityToDemands : public SimulationMetricsEnum {
 public:
  ReliabilityToDemands()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::reliabilityToDemands,
                              "Confiabilidade para demandas") {}
};

class ReliabilityToReservoirs : public SimulationMetricsEnum {
 public:
  ReliabilityToReservoirs()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::reliabilityToReservoirs,
                              "Confiabilidade para reserv. (volume meta)") {}
};

class ReliabilityToReservoirsAndDemands : public SimulationMetricsEnum {
 public:
  ReliabilityToReservoirsAndDemands()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::reliabilityToReservoirsAndDemands,
                              "Confiabilidade para reserv. (volume meta) e demandas") {}
};

class ResilienceOfType1 : public SimulationMetricsEnum {
 public:
  ResilienceOfType1()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::resilienceOfType1,
                              "Resiliência de tipo 1") {}
};

class ResilienceOfType2 : public SimulationMetricsEnum {
 public:
  ResilienceOfType2()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::resilienceOfType2,
                              "Resiliência de tipo 2") {}
};

class SpillFrequency : public SimulationMetricsEnum {
 public:
  SpillFrequency()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::spillFrequency,
                              "Frequência com que houve vertimento") {}
};

class VolumeAccumulatedSpill : public SimulationMetricsEnum {
 public:
  VolumeAccumulatedSpill()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::volumeAccumulatedSpill,
                              "Volume acumulado vertido") {}
};

class Vulnerability : public SimulationMetricsEnum {
 public:
  Vulnerability()
      : SimulationMetricsEnum(SimulationMetricsTypeDefinition::vulnerability, "Vulnerabilidade") {}
};
