#include "checks/ReleaseRuleCheck.h"

#include <algorithm>

#include "checks/ReleaseRuleCheckFactory.h"
#include "checks/SerieCheck.h"
#include "common/NumericalUtils.h"
#include "core/ReservoirRuleSettings.h"
#include "core/Scenario.h"
#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOneReleaseRule.h"
#include "rules/VolDepTwoReleaseRule.h"

namespace {

bool negative(double value) { return NumericalUtils::subtractDoubles(value, 0.0, 1e-6) < 0.0; }

std::string at(std::size_t i) { return "(i = " + std::to_string(i) + ")"; }

std::string cell(std::size_t i, std::size_t j) {
  return "(i, j) =  " + std::to_string(i) + "," + std::to_string(j) + ")";
}

// A dependency must be set and enabled.
void checkDependency(ReleaseRuleCheck* check, const std::shared_ptr<Element>& dependency) {
  if (!dependency) {
    check->report("Dependência não configurada:");
  } else if (!dependency->isEnabled()) {
    check->report("Reservatório de dependência não está habilitado:");
  }
}

using LearnedRule = MachineLearningRegressionColVolumesReleaseRule;

void checkSystemEnabled(ReleaseRuleCheck* check) {
  for (const auto& reservoir : check->rule<LearnedRule>().getReservoirs()) {
    if (!reservoir->isEnabled()) {
      check->report("Os reservatórios associados ao reservatório r não podem estar desabilitados:");
      return;
    }
  }
}

// The model needs at least its number of entries; a rule without entries fails this too.
template <const char* text>
void checkEntries(ReleaseRuleCheck* check) {
  const auto& rule = check->rule<LearnedRule>();
  if (rule.getNumberOfEntriesForAverage() > rule.getDataset().size() || rule.getDataset().empty()) {
    check->report(text);
  }
}

constexpr char kTooManyNeighbours[] = "Valor de K superior ao tamanho do dataset em:";
constexpr char kTooLargeSplit[] =
    "Valor de mínimo para quebra de nó é superior ao tamanho do dataset em:";

void checkOneDependency(ReleaseRuleCheck* check) {
  checkDependency(check, check->rule<VolDepOneReleaseRule>().getReservoirDependency());
}

void checkTwoDependencies(ReleaseRuleCheck* check) {
  const auto& rule = check->rule<VolDepTwoReleaseRule>();
  checkDependency(check, rule.getReservoirDependency1());
  checkDependency(check, rule.getReservoirDependency2());
}

bool ascending(const std::vector<double>& values) {
  return std::is_sorted(values.begin(), values.end());
}

std::vector<double> percentagesOf(const VolDepOneReleaseRule& rule) {
  std::vector<double> percentages;
  for (const auto& row : rule.getVectorOfVolDepOneReleaseStruct()) {
    percentages.push_back(row.percentage);
  }
  return percentages;
}

void checkOneSorted(ReleaseRuleCheck* check, const std::string& rule) {
  if (!ascending(percentagesOf(check->rule<VolDepOneReleaseRule>()))) {
    check->report("Os valores das porcentagens de volume máximo não estão ordenados na " + rule +
                  ":");
  }
}

void checkTwoSorted(ReleaseRuleCheck* check, const std::string& rule) {
  const auto& table = check->rule<VolDepTwoReleaseRule>().getVolDepTwoReleaseStruct();
  if (!ascending(table.volumePercentageD1) || !ascending(table.volumePercentageD2)) {
    check->report("Os valores das porcentagens de volume máximo não estão ordenados na " + rule +
                  ":");
  }
}

// Each cell (month slot, i, j) of a two-reservoir table below zero.
template <typename Report>
void eachNegativeCell(ReleaseRuleCheck* check, Report report) {
  const auto& releases = check->rule<VolDepTwoReleaseRule>().getVolDepTwoReleaseStruct().releases;
  for (std::size_t m = 0; m < releases.size(); ++m) {
    for (std::size_t i = 0; i < releases[m].size(); ++i) {
      for (std::size_t j = 0; j < releases[m][i].size(); ++j) {
        if (negative(releases[m][i][j])) report(m, i, j);
      }
    }
  }
}

template <typename Rule>
void checkConstRelease(ReleaseRuleCheck* check) {
  if (negative(check->rule<Rule>().getRelease())) {
    check->report("Valor negativo na liberação constante:");
  }
}

template <typename Rule>
void checkMonthlyReleases(ReleaseRuleCheck* check) {
  const auto& releases = check->rule<Rule>().getRelease();
  for (std::size_t m = 0; m < releases.size(); ++m) {
    if (negative(releases[m])) {
      check->report("Valor negativo na liberação periódica no mês m:(m = " + std::to_string(m + 1) +
                    ")");
    }
  }
}

template <typename Rule>
void checkReleaseSerie(ReleaseRuleCheck* check) {
  SerieCheck serieCheck(check->rule<Rule>().getReleaseSerie(), check->getScenario()->getInterval(),
                        check->getElement()->getName());
  serieCheck.check();
  auto& errors = check->getErrors();
  errors.insert(errors.end(), serieCheck.getErrors().begin(), serieCheck.getErrors().end());
}

const char* kNegativeMaximum = "Valor máximo de liberação negativo na regra de otimização:";

// The range in which an optimiser chooses the releases of the rule.
template <typename Rule>
void checkBounds(ReleaseRuleCheck* check) {
  const auto& rule = check->rule<Rule>();
  if (negative(rule.getLowerRelease())) {
    check->report("Valor mínimo de liberação negativo na regra de otimização:");
  }
  if (negative(rule.getUpperRelease())) check->report(kNegativeMaximum);
  if (NumericalUtils::subtractDoubles(rule.getLowerRelease(), rule.getUpperRelease(), 1e-6) >=
      0.0) {
    check->report("Liberação mínima maior ou igual a liberação máxima na regra de otimização:");
  }
}

const char* kStaticOne = "liberação estática por dependência de volume de 1 reservatório";
const char* kPeriodicOne = "liberação periódica por dependência de volume de 1 reservatório";
const char* kStaticTwo = "liberação estática por dependência de volume de 2 reservatórios";
const char* kPeriodicTwo = "liberação periódica por dependência de volume de 2 reservatórios";

}  // namespace

ReleaseRuleCheck::ReleaseRuleCheck(std::weak_ptr<Scenario> scenario,
                                   std::shared_ptr<Element> element, Errors& errors)
    : scenario(std::move(scenario)), element(std::move(element)), errors(errors) {}

void ReleaseRuleCheck::check() {
  for (const Lambda& lambda : getLambdas()) lambda(this);
}

void ReleaseRuleCheck::report(const std::string& message) {
  errors.push_back({element->getName(), message});
}

std::shared_ptr<ReleaseRule> ReleaseRuleCheck::ruleOfElement() const {
  return Scenario::getSettings<ReservoirRuleSettings>(element, scenario.lock()->getSettingsManager())
      ->getRule();
}

std::vector<ReleaseRuleCheck::Lambda> NoneReleaseRuleCheck::getLambdas() const { return {}; }

std::vector<ReleaseRuleCheck::Lambda> ConstReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkConstRelease<ConstReleaseRule>};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> PeriodicReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkMonthlyReleases<PeriodicReleaseRule>};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> SerieReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkReleaseSerie<SerieReleaseRule>};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> OptNoneReleaseRuleCheck::getLambdas() const { return {}; }

std::vector<ReleaseRuleCheck::Lambda> OptHydrologicalStateReleaseRuleCheck::getLambdas() const {
  auto lambdas = HydrologicalStateReleaseRuleCheck::getLambdas();
  lambdas.push_back([](ReleaseRuleCheck* check) {
    if (negative(check->rule<OptHydrologicalStateReleaseRule>().getMaxRelease())) {
      check->report(kNegativeMaximum);
    }
  });
  return lambdas;
}

std::vector<ReleaseRuleCheck::Lambda> OptConstReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkConstRelease<OptConstReleaseRule>,
                                            checkBounds<OptConstReleaseRule>};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> OptPeriodicReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkMonthlyReleases<OptPeriodicReleaseRule>,
                                            checkBounds<OptPeriodicReleaseRule>};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> OptSerieReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {
      checkReleaseSerie<OptSerieReleaseRule>, [](ReleaseRuleCheck* check) {
        if (negative(check->rule<OptSerieReleaseRule>().getMaxRelease())) {
          check->report(kNegativeMaximum);
        }
      }};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> KNNRegressionColVolumesReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkEntries<kTooManyNeighbours>, checkSystemEnabled};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> RegressionTreeColVolumesReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {checkEntries<kTooLargeSplit>, checkSystemEnabled};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> RegressionRandomForestColVolumesReleaseRuleCheck::getLambdas()
    const {
  static const std::vector<Lambda> table = {checkEntries<kTooLargeSplit>, checkSystemEnabled};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> HydrologicalStateReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {[](ReleaseRuleCheck* check) {
    const auto& releases = check->rule<HydrologicalStateReleaseRule>().getRelease();
    for (std::size_t i = 0; i < releases.size(); ++i) {
      if (negative(releases[i])) {
        check->report("Valor negativo na liberação i do estado hidrológico:" + at(i));
      }
    }
  }};
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> VolDepOneStaticReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {
      checkOneDependency,
      [](ReleaseRuleCheck* check) {
        const auto& rows = check->rule<VolDepOneReleaseRule>().getVectorOfVolDepOneReleaseStruct();
        for (std::size_t i = 0; i < rows.size(); ++i) {
          if (!rows[i].releases.empty() && negative(rows[i].releases[0])) {
            check->report("Valor negativo na linha i em " + std::string(kStaticOne) + ":" + at(i));
          }
        }
      },
      [](ReleaseRuleCheck* check) { checkOneSorted(check, kStaticOne); },
  };
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> VolDepOnePeriodicReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {
      checkOneDependency,
      [](ReleaseRuleCheck* check) {
        const auto& rows = check->rule<VolDepOneReleaseRule>().getVectorOfVolDepOneReleaseStruct();
        for (std::size_t i = 0; i < rows.size(); ++i) {
          for (std::size_t m = 0; m < rows[i].releases.size(); ++m) {
            if (negative(rows[i].releases[m])) {
              check->report("Valor negativo na linha i no mês m em " + std::string(kPeriodicOne) +
                            ":(i = " + std::to_string(i) + ", m = " + std::to_string(m + 1) + ")");
            }
          }
        }
      },
      [](ReleaseRuleCheck* check) { checkOneSorted(check, kPeriodicOne); },
  };
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> VolDepTwoStaticReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {
      checkTwoDependencies,
      [](ReleaseRuleCheck* check) {
        eachNegativeCell(check, [&](std::size_t, std::size_t i, std::size_t j) {
          check->report("Valor negativo na posição (i, j) em " + std::string(kStaticTwo) + ":" +
                        cell(i, j));
        });
      },
      [](ReleaseRuleCheck* check) { checkTwoSorted(check, kStaticTwo); },
  };
  return table;
}

std::vector<ReleaseRuleCheck::Lambda> VolDepTwoPeriodicReleaseRuleCheck::getLambdas() const {
  static const std::vector<Lambda> table = {
      checkTwoDependencies,
      [](ReleaseRuleCheck* check) {
        eachNegativeCell(check, [&](std::size_t m, std::size_t i, std::size_t j) {
          check->report("Valor negativo na posição (i, j) no mês m em " +
                        std::string(kPeriodicTwo) + ":(i, j) =  " + std::to_string(i) + "," +
                        std::to_string(j) + ") m = " + std::to_string(m + 1));
        });
      },
      [](ReleaseRuleCheck* check) { checkTwoSorted(check, kPeriodicTwo); },
  };
  return table;
}

std::shared_ptr<ReleaseRuleCheck> ReleaseRuleCheckFactory::make(std::weak_ptr<Scenario> scenario,
                                                                std::shared_ptr<Element> element,
                                                                ReleaseRuleCheck::Errors& errors) {
  using Maker = std::function<std::shared_ptr<ReleaseRuleCheck>(
      std::weak_ptr<Scenario>, std::shared_ptr<Element>, ReleaseRuleCheck::Errors&)>;
  using R = ReleaseRuleType;
  static const std::map<ReleaseRuleType, Maker> makers = {
      {R::none,
       [](auto s, auto e, auto& x) { return std::make_shared<NoneReleaseRuleCheck>(s, e, x); }},
      {R::constant,
       [](auto s, auto e, auto& x) { return std::make_shared<ConstReleaseRuleCheck>(s, e, x); }},
      {R::periodic,
       [](auto s, auto e, auto& x) { return std::make_shared<PeriodicReleaseRuleCheck>(s, e, x); }},
      {R::serie,
       [](auto s, auto e, auto& x) { return std::make_shared<SerieReleaseRuleCheck>(s, e, x); }},
      {R::hydrologicalState,
       [](auto s, auto e, auto& x) {
         return std::make_shared<HydrologicalStateReleaseRuleCheck>(s, e, x);
       }},
      {R::staticVolumeDependence1,
       [](auto s, auto e, auto& x) {
         return std::make_shared<VolDepOneStaticReleaseRuleCheck>(s, e, x);
       }},
      {R::periodicVolumeDependence1,
       [](auto s, auto e, auto& x) {
         return std::make_shared<VolDepOnePeriodicReleaseRuleCheck>(s, e, x);
       }},
      {R::staticVolumeDependence2,
       [](auto s, auto e, auto& x) {
         return std::make_shared<VolDepTwoStaticReleaseRuleCheck>(s, e, x);
       }},
      {R::periodicVolumeDependence2,
       [](auto s, auto e, auto& x) {
         return std::make_shared<VolDepTwoPeriodicReleaseRuleCheck>(s, e, x);
       }},
      {R::knnRegression,
       [](auto s, auto e, auto& x) {
         return std::make_shared<KNNRegressionColVolumesReleaseRuleCheck>(s, e, x);
       }},
      {R::regressionTree,
       [](auto s, auto e, auto& x) {
         return std::make_shared<RegressionTreeColVolumesReleaseRuleCheck>(s, e, x);
       }},
      {R::randomForest,
       [](auto s, auto e, auto& x) {
         return std::make_shared<RegressionRandomForestColVolumesReleaseRuleCheck>(s, e, x);
       }},
      {R::optNone,
       [](auto s, auto e, auto& x) { return std::make_shared<OptNoneReleaseRuleCheck>(s, e, x); }},
      {R::optConstant,
       [](auto s, auto e, auto& x) { return std::make_shared<OptConstReleaseRuleCheck>(s, e, x); }},
      {R::optPeriodic,
       [](auto s, auto e, auto& x) {
         return std::make_shared<OptPeriodicReleaseRuleCheck>(s, e, x);
       }},
      {R::optSerie,
       [](auto s, auto e, auto& x) { return std::make_shared<OptSerieReleaseRuleCheck>(s, e, x); }},
      {R::optHydrologicalState,
       [](auto s, auto e, auto& x) {
         return std::make_shared<OptHydrologicalStateReleaseRuleCheck>(s, e, x);
       }},
      {R::optStaticVolumeDependence1,
       [](auto s, auto e, auto& x) {
         return std::make_shared<OptVolDepOneStaticReleaseRuleCheck>(s, e, x);
       }},
      {R::optPeriodicVolumeDependence1,
       [](auto s, auto e, auto& x) {
         return std::make_shared<OptVolDepOnePeriodicReleaseRuleCheck>(s, e, x);
       }},
      {R::optStaticVolumeDependence2,
       [](auto s, auto e, auto& x) {
         return std::make_shared<OptVolDepTwoStaticReleaseRuleCheck>(s, e, x);
       }},
      {R::optPeriodicVolumeDependence2,
       [](auto s, auto e, auto& x) {
         return std::make_shared<OptVolDepTwoPeriodicReleaseRuleCheck>(s, e, x);
       }},
  };
  const auto rule =
      Scenario::getSettings<ReservoirRuleSettings>(element, scenario.lock()->getSettingsManager())
          ->getRule();
  auto it = rule ? makers.find(rule->getType().getType()) : makers.end();
  if (it == makers.end()) {
    throw std::invalid_argument("ReleaseRuleCheckFactory::make: invalid release rule type");
  }
  return it->second(scenario, element, errors);
}
