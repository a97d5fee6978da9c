#include "vocabulary/Vocabulary.h"

#include <map>
#include <stdexcept>

namespace {

struct SerieTypeRow {
  SerieType type;
  const char* name;
  Unit unit;
  bool input;
  bool output;
};

// Kind, display name, unit of creation, and whether users supply it or runs fill it.
const std::vector<SerieTypeRow>& serieTypeRows() {
  using S = SerieType;
  using U = Unit;
  static const std::vector<SerieTypeRow> rows = {
      {S::precipitation, "Precipitação", U::millimetres, true, false},
      {S::evaporation, "Evaporação", U::millimetres, true, false},
      {S::naturalIncrementalFlow, "Vazão natural incremental", U::cubicMetresPerSecond, true,
       false},
      {S::targetVolume, "Volume meta", U::dimensionless, true, true},
      {S::demand, "Demanda", U::cubicMetresPerSecond, true, false},
      {S::transitLossPercentage, "Perda em trânsito", U::percentage, true, false},
      {S::initialVolume, "Volume inicial", U::cubicHectometres, false, true},
      {S::finalVolume, "Volume final", U::cubicHectometres, false, true},
      {S::upstreamControlledFlow, "Vazão controlada a montante", U::cubicMetresPerSecond, false,
       true},
      {S::upstreamControlledVolume, "Volume controlado a montante", U::cubicHectometres, false,
       true},
      {S::upstreamUncontrolledFlow, "Vazão não controlada a montante", U::cubicMetresPerSecond,
       false, true},
      {S::upstreamUncontrolledVolume, "Volume não controlado a montante", U::cubicHectometres,
       false, true},
      {S::inflow, "Vazão afluente", U::cubicMetresPerSecond, false, true},
      {S::transitLoss, "Perda em trânsito", U::cubicMetresPerSecond, false, true},
      {S::outflow, "Vazão efluente", U::cubicMetresPerSecond, false, true},
      {S::outflowVolume, "Volume efluente", U::cubicHectometres, false, true},
      {S::level, "Cota", U::metres, false, true},
      {S::area, "Área", U::squareKilometres, false, true},
      {S::attendedDemand, "Demanda atendida", U::cubicMetresPerSecond, false, true},
      {S::attendedDemandVolume, "Demanda atendida em volume", U::cubicHectometres, false, true},
      {S::attendedDemandPercentage, "Demanda atendida em porcentagem", U::percentage, false,
       true},
      {S::consumedDemand, "Demanda consumida", U::cubicMetresPerSecond, false, true},
      {S::consumedDemandVolume, "Demanda consumida em volume", U::cubicHectometres, false, true},
      {S::supplyShortage, "Escassez de oferta", U::cubicMetresPerSecond, false, true},
      {S::supplyShortageVolume, "Escassez de oferta em volume", U::cubicHectometres, false, true},
      {S::targetDemand, "Demanda meta", U::cubicMetresPerSecond, false, true},
      {S::targetDemandVolume, "Demanda meta em volume", U::cubicHectometres, false, true},
      {S::supplyFailure, "Falha no atendimento", U::dimensionless, false, true},
      {S::supplyExcess, "Excesso de oferta", U::cubicMetresPerSecond, false, true},
      {S::supplyExcessVolume, "Excesso de oferta em volume", U::cubicHectometres, false, true},
      {S::precipitatedVolume, "Volume precipitado", U::cubicHectometres, false, true},
      {S::evaporatedVolume, "Volume evaporado", U::cubicHectometres, false, true},
      {S::releasedFlow, "Vazão liberada", U::cubicMetresPerSecond, false, true},
      {S::releasedVolume, "Volume liberado", U::cubicHectometres, false, true},
      {S::spilledFlow, "Vazão vertida", U::cubicMetresPerSecond, false, true},
      {S::spilledVolume, "Volume vertido", U::cubicHectometres, false, true},
      {S::priority, "Prioridade", U::dimensionless, false, true},
      {S::pumpingCost, "Custo de bombeamento", U::reais, false, true},
      {S::linkSense, "Sentido do trecho", U::dimensionless, false, true},
      {S::linkLimit, "Limite de trecho", U::cubicMetresPerSecond, true, false},
  };
  return rows;
}

template <typename E, typename T>
const E& rowOf(const EnumTable<E, T>& table, T type) {
  const E* row = table.findByType(type);
  if (row == nullptr) {
    throw std::invalid_argument("Vocabulary::of(): value outside the vocabulary");
  }
  return *row;
}

}  // namespace

const EnumTable<EnumElementType, ElementType>& Vocabulary::elementTypes() {
  using E = ElementType;
  static const EnumTable<EnumElementType, ElementType> table({
      {E::reservoir, "Reservatório", 'R'},
      {E::genericDemand, "Demanda", 'D'},
      {E::humanDemand, "Demanda humana", 'D'},
      {E::animalDemand, "Demanda animal", 'D'},
      {E::industrialDemand, "Demanda industrial", 'D'},
      {E::irrigationDemand, "Demanda de irrigação", 'D'},
      {E::drain, "Dreno", 'D'},
      {E::junction, "Junção", 'J'},
      {E::basin, "Bacia", 'B'},
      {E::genericLink, "Trecho", 'L'},
      {E::artificialLink, "Trecho artificial", 'L'},
      {E::naturalLink, "Trecho natural", 'L'},
  });
  return table;
}

const EnumTable<Enum<SerieType>, SerieType>& Vocabulary::serieTypes() {
  static const EnumTable<Enum<SerieType>, SerieType> table([] {
    std::vector<Enum<SerieType>> rows;
    for (const SerieTypeRow& row : serieTypeRows()) rows.emplace_back(row.type, row.name);
    return rows;
  }());
  return table;
}

const EnumTable<Enum<Unit>, Unit>& Vocabulary::units() {
  using U = Unit;
  static const EnumTable<Enum<Unit>, Unit> table({
      {U::dimensionless, "adimensional"},
      {U::hours, "horas"},
      {U::hoursPerDay, "horas/dia"},
      {U::cubicMetresPerSecond, "m³/s"},
      {U::cubicHectometres, "hm³"},
      {U::millimetres, "mm"},
      {U::metres, "m"},
      {U::cubicMetres, "m³"},
      {U::squareKilometres, "km²"},
      {U::reais, "R$"},
      {U::percentage, "%"},
      {U::centimetres, "cm"},
      {U::degreesCelsius, "cº"},
      {U::milligrams, "Mg"},
      {U::kilograms, "Kg"},
      {U::litres, "Liters"},
      {U::litresPerSecond, "LitersBySeconds"},
  });
  return table;
}

const EnumTable<EnumPeriodicity, Periodicity>& Vocabulary::periodicities() {
  static const EnumTable<EnumPeriodicity, Periodicity> table({
      {Periodicity::daily, "Diário", "%d/%m/%Y"},
      {Periodicity::monthly, "Mensal", "%m/%Y"},
      {Periodicity::yearly, "Anual", "%Y"},
  });
  return table;
}

const EnumTable<Enum<ScenarioType>, ScenarioType>& Vocabulary::scenarioTypes() {
  using S = ScenarioType;
  static const EnumTable<Enum<ScenarioType>, ScenarioType> table({
      {S::priorityOptimizer, "Otimizador por prioridades"},
      {S::ruleSimulator, "Simulador por regras"},
      {S::ruleOptimizer, "Otimizador de regras"},
      {S::guaranteeCurve, "Curva de garantia"},
      {S::systemGuaranteeCurve, "Curva de garantia do sistema"},
  });
  return table;
}

const EnumTable<Enum<SceneryIndicator>, SceneryIndicator>& Vocabulary::sceneryIndicators() {
  static const EnumTable<Enum<SceneryIndicator>, SceneryIndicator> table([] {
    std::vector<Enum<SceneryIndicator>> rows;
    for (const auto& row : scenarioTypes().getRows()) {
      rows.emplace_back(static_cast<SceneryIndicator>(row.getType()), row.getName());
    }
    return rows;
  }());
  return table;
}

const EnumTable<Enum<ExecutionType>, ExecutionType>& Vocabulary::executionTypes() {
  using X = ExecutionType;
  static const EnumTable<Enum<ExecutionType>, ExecutionType> table({
      {X::continuous, "Contínuo"},
      {X::windowed, "Janela"},
      {X::optimization, "Otimização"},
      {X::guaranteeCurve, "Curva de garantia"},
      {X::systemGuaranteeCurve, "Curva de garantia do sistema"},
  });
  return table;
}

const EnumTable<Enum<ReleaseRuleType>, ReleaseRuleType>& Vocabulary::releaseRuleTypes() {
  using R = ReleaseRuleType;
  static const EnumTable<Enum<ReleaseRuleType>, ReleaseRuleType> table({
      {R::none, "Nenhuma regra de liberação"},
      {R::constant, "Liberação constante"},
      {R::periodic, "Liberação periódica"},
      {R::serie, "Liberação por série"},
      {R::hydrologicalState, "Liberação por estado hidrológico"},
      {R::staticVolumeDependence1,
       "Liberação estática por dependência de volume de 1 reservatório"},
      {R::periodicVolumeDependence1,
       "Liberação periódica por dependência de volume de 1 reservatório"},
      {R::staticVolumeDependence2,
       "Liberação estática por dependência de volume de 2 reservatórios"},
      {R::periodicVolumeDependence2,
       "Liberação periódica por dependência de volume de 2 reservatórios"},
      {R::knnRegression, "Liberação via KNN de regressão"},
      {R::regressionTree, "Liberação via árvore de regressão"},
      {R::randomForest, "Liberação via floresta aleatória"},
      {R::optNone, "Nenhuma regra de liberação de otimização"},
      {R::optConstant, "Liberação constante em otimização"},
      {R::optPeriodic, "Liberação periódica em otimização"},
      {R::optSerie, "Liberação por série em otimização"},
      {R::optStaticVolumeDependence1,
       "Liberação estática por dependência de volume de 1 reservatório em otimização"},
      {R::optPeriodicVolumeDependence1,
       "Liberação periódica por dependência de volume de 1 reservatório em otimização"},
      {R::optStaticVolumeDependence2,
       "Liberação estática por dependência de volume de 2 reservatórios em otimização"},
      {R::optPeriodicVolumeDependence2,
       "Liberação periódica por dependência de volume de 2 reservatórios em otimização"},
      {R::optHydrologicalState, "Liberação por estado hidrológico em otimização"},
  });
  return table;
}

const EnumTable<EnumLinkAddonType, LinkAddonType>& Vocabulary::linkAddonTypes() {
  static const EnumTable<EnumLinkAddonType, LinkAddonType> table({
      {LinkAddonType::none, "Nenhum"},
      {LinkAddonType::propagation, "Propagação"},
      {LinkAddonType::pumping, "Bombeamento"},
  });
  return table;
}

const EnumTable<Enum<Sense>, Sense>& Vocabulary::senses() {
  static const EnumTable<Enum<Sense>, Sense> table({
      {Sense::original, "Original"},
      {Sense::inverted, "Invertido"},
  });
  return table;
}

const EnumTable<Enum<SceneryStatus>, SceneryStatus>& Vocabulary::sceneryStatuses() {
  using S = SceneryStatus;
  static const EnumTable<Enum<SceneryStatus>, SceneryStatus> table({
      {S::configurationError,
       "Cenário não executado devido a existência algum erro de configuração."},
      {S::success, "Cenário executado com sucesso!"},
      {S::cancelled, "A execução do cenário foi cancelada!"},
      {S::bidirectionalLoop,
       "A execução do cenário foi interrompida devido a existência de loop na rede em alguma "
       "variação de trecho bidirecional."},
  });
  return table;
}

const EnumTable<Enum<HydrologicalStateType>, HydrologicalStateType>&
Vocabulary::hydrologicalStateTypes() {
  using H = HydrologicalStateType;
  static const EnumTable<Enum<HydrologicalStateType>, HydrologicalStateType> table({
      {H::none, "Sem"},
      {H::standard, "Padrão"},
      {H::perReservoir, "Por reservatório"},
      {H::perReservoirMonthly, "Por reservatório mensal"},
  });
  return table;
}

Unit Vocabulary::unitOf(SerieType type) {
  static const std::map<SerieType, Unit> units = [] {
    std::map<SerieType, Unit> result;
    for (const SerieTypeRow& row : serieTypeRows()) result.emplace(row.type, row.unit);
    return result;
  }();
  auto it = units.find(type);
  if (it == units.end()) throw std::invalid_argument("Error: invalid serie type.");
  return it->second;
}

const std::set<SerieType>& Vocabulary::inputSerieTypes() {
  static const std::set<SerieType> types = [] {
    std::set<SerieType> result;
    for (const SerieTypeRow& row : serieTypeRows()) {
      if (row.input) result.insert(row.type);
    }
    return result;
  }();
  return types;
}

const std::set<SerieType>& Vocabulary::outputSerieTypes() {
  static const std::set<SerieType> types = [] {
    std::set<SerieType> result;
    for (const SerieTypeRow& row : serieTypeRows()) {
      if (row.output) result.insert(row.type);
    }
    return result;
  }();
  return types;
}

const std::string& Vocabulary::releaseSerieLabel() {
  static const std::string label = of(SerieType::releasedFlow).getName() + "(" +
                                   of(unitOf(SerieType::releasedFlow)).getName() + ")";
  return label;
}

const std::vector<ScenarioType>& Vocabulary::scenarioTypesInOfferOrder() {
  using S = ScenarioType;
  static const std::vector<ScenarioType> order = {S::ruleSimulator, S::ruleOptimizer,
                                                  S::priorityOptimizer, S::guaranteeCurve,
                                                  S::systemGuaranteeCurve};
  return order;
}

const std::vector<ExecutionType>& Vocabulary::executionTypesOf(ScenarioType type) {
  using X = ExecutionType;
  static const std::map<ScenarioType, std::vector<ExecutionType>> byScenario = {
      {ScenarioType::ruleSimulator, {X::continuous, X::windowed}},
      {ScenarioType::priorityOptimizer, {X::continuous, X::windowed}},
      {ScenarioType::ruleOptimizer, {X::optimization}},
      {ScenarioType::guaranteeCurve, {X::guaranteeCurve}},
      {ScenarioType::systemGuaranteeCurve, {X::systemGuaranteeCurve}},
  };
  return byScenario.at(type);
}

const EnumElementType& Vocabulary::of(ElementType type) { return rowOf(elementTypes(), type); }
const Enum<SerieType>& Vocabulary::of(SerieType type) { return rowOf(serieTypes(), type); }
const Enum<Unit>& Vocabulary::of(Unit type) { return rowOf(units(), type); }
const EnumPeriodicity& Vocabulary::of(Periodicity type) { return rowOf(periodicities(), type); }
const Enum<ScenarioType>& Vocabulary::of(ScenarioType type) {
  return rowOf(scenarioTypes(), type);
}
const Enum<ExecutionType>& Vocabulary::of(ExecutionType type) {
  return rowOf(executionTypes(), type);
}
const Enum<ReleaseRuleType>& Vocabulary::of(ReleaseRuleType type) {
  return rowOf(releaseRuleTypes(), type);
}
const EnumLinkAddonType& Vocabulary::of(LinkAddonType type) {
  return rowOf(linkAddonTypes(), type);
}
const Enum<Sense>& Vocabulary::of(Sense type) { return rowOf(senses(), type); }
const Enum<SceneryStatus>& Vocabulary::of(SceneryStatus type) {
  return rowOf(sceneryStatuses(), type);
}
const Enum<HydrologicalStateType>& Vocabulary::of(HydrologicalStateType type) {
  return rowOf(hydrologicalStateTypes(), type);
}
