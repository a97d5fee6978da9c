#include "checks/ReservoirCheck.h"

#include <algorithm>

#include "checks/AllocationMatrixCheck.h"
#include "checks/ReleaseRuleCheckFactory.h"
#include "common/NumericalUtils.h"
#include "core/Link.h"
#include "core/ReservoirRuleSettings.h"
#include "core/Scenario.h"

namespace {

constexpr double kEps = 1e-6;
constexpr std::size_t kMinimumCavRows = 4;

bool negative(double value) { return NumericalUtils::subtractDoubles(value, 0.0, kEps) < 0.0; }
bool above(double a, double b) { return NumericalUtils::subtractDoubles(a, b, kEps) > 0.0; }

}  // namespace

ReservoirCheck::ReservoirCheck(std::shared_ptr<Element> element, std::set<SerieType> serieTypes,
                               std::weak_ptr<Scenario> scenario)
    : NodeCheck(std::move(element), std::move(serieTypes), std::move(scenario)) {}

void ReservoirCheck::runChecks() {
  NodeCheck::runChecks();
  static const std::vector<void (ReservoirCheck::*)()> table = {
      &ReservoirCheck::negativeMinVol,
      &ReservoirCheck::negativeMaxVol,
      &ReservoirCheck::negativeInitVol,
      &ReservoirCheck::minGTMaxVolume,
      &ReservoirCheck::initGTMaxVolume,
      &ReservoirCheck::multiNatDownLink,
      &ReservoirCheck::checkNegativeMaxRelease,
      &ReservoirCheck::emptyCAV,
      &ReservoirCheck::firstLineCAV,
      &ReservoirCheck::minVolCAV,
      &ReservoirCheck::maxVolCAV,
      &ReservoirCheck::linesCAV,
      &ReservoirCheck::numberOfLinesCAV,
      &ReservoirCheck::checkDownstreamDrainReservoirBidirectional,
  };
  runTable(this, table);
}

void ReservoirCheck::negativeMinVol() {
  if (negative(info().minVol)) report("Volume mínimo negativo em:");
}

void ReservoirCheck::negativeMaxVol() {
  if (negative(info().maxVol)) report("Volume máximo negativo em:");
}

void ReservoirCheck::negativeInitVol() {
  if (negative(info().initVol)) report("Volume inicial negativo em:");
}

void ReservoirCheck::minGTMaxVolume() {
  if (above(info().minVol, info().maxVol)) report("Volume mínimo maior que volume máximo em:");
}

void ReservoirCheck::initGTMaxVolume() {
  if (above(info().initVol, info().maxVol)) report("Volume inicial maior que volume máximo em:");
}

void ReservoirCheck::multiNatDownLink() {
  const auto links = reservoir().getEnabledDownstreamLinks();
  const auto natural = std::count_if(links.begin(), links.end(), [](const auto& link) {
    return link->getType() == ElementType::naturalLink;
  });
  if (natural != 1) report("Quantidade de trechos naturais a jusantes diferente de 1:");
}

void ReservoirCheck::checkNegativeMaxRelease() {
  if (negative(info().maxRelease)) report("Valor de liberação negativo em:");
}

void ReservoirCheck::emptyCAV() {
  if (info().cav.empty()) report("CAV vazia em:");
}

void ReservoirCheck::firstLineCAV() {
  if (info().cav.empty()) return;
  const auto& first = info().cav.front();
  if (!NumericalUtils::compareDoubles(first.at(ReservoirInfo::area), 0.0, kEps) ||
      !NumericalUtils::compareDoubles(first.at(ReservoirInfo::volume), 0.0, kEps)) {
    report("A primeira linha da CAV deve possuir valor 0.0 para área e volume:");
  }
}

void ReservoirCheck::minVolCAV() {
  if (info().cav.size() <= 1) return;
  if (NumericalUtils::subtractDoubles(info().minVol, info().cav[1].at(ReservoirInfo::volume),
                                      kEps) < 0.0) {
    report(
        "O valor de volume mínimo do reservatório deve ser maior ou igual ao volume mínimo da "
        "matriz da CAV:");
  }
}

void ReservoirCheck::maxVolCAV() {
  if (info().cav.empty()) return;
  if (above(info().maxVol, info().cav.back().at(ReservoirInfo::volume))) {
    report(
        "O valor de volume máximo do reservatório deve ser menor ou igual ao volume máximo da "
        "matriz da CAV:");
  }
}

void ReservoirCheck::linesCAV() {
  const auto& cav = info().cav;
  for (std::size_t i = 1; i < cav.size(); ++i) {
    bool decreases = false;
    for (std::size_t column = 0; column < 3; ++column) {
      decreases = decreases ||
                  NumericalUtils::subtractDoubles(cav[i].at(column), cav[i - 1].at(column), kEps) <
                      0.0;
    }
    if (decreases) {
      report(
          "Matriz da CAV inválida. O valor da linha i de (cota, área ou volume) deve ser maior ou "
          "igual ao valor da linha i - 1:(i = " +
          std::to_string(i) + ", i - 1 = " + std::to_string(i - 1) + ")");
    }
  }
}

void ReservoirCheck::numberOfLinesCAV() {
  if (info().cav.size() < kMinimumCavRows) {
    report("Matriz da CAV possui menos que " + std::to_string(kMinimumCavRows) + " linhas em:");
  }
}

void ReservoirCheck::checkDownstreamDrainReservoirBidirectional() {
  if (!reservoir().hasBidirectionalLink()) return;
  for (const auto& link : reservoir().getEnabledDownstreamLinks()) {
    if (!link->getIsBidirectional() && !reachesDrain(link)) {
      report("Reservatório com trecho bidirecional sem um dreno a jusante:");
      return;
    }
  }
}

RuleReservoirCheck::RuleReservoirCheck(std::shared_ptr<Element> element,
                                       std::weak_ptr<Scenario> scenario)
    : ReservoirCheck(std::move(element),
                     {SerieType::precipitation, SerieType::evaporation,
                      SerieType::naturalIncrementalFlow},
                     std::move(scenario)) {}

void RuleReservoirCheck::runChecks() {
  ReservoirCheck::runChecks();
  static const std::vector<void (RuleReservoirCheck::*)()> table = {
      &RuleReservoirCheck::checkAllocationMatrix,
      &RuleReservoirCheck::checkReleaseRule,
  };
  runTable(this, table);
}

void RuleReservoirCheck::checkAllocationMatrix() {
  const auto settings =
      Scenario::getSettings<ReservoirRuleSettings>(getElement(), getScenario()->getSettingsManager());
  const auto& matrix = settings->getAllocation();
  auto& errors = mutableErrors();
  AllocationMatrixCheck::checkReleasesInLinesOfMatrix(matrix, *getElement(), errors);
  AllocationMatrixCheck::checkTheSumOfMatrixBiggerThan(matrix, *getElement(), errors);
  AllocationMatrixCheck::checkTheSumOfMatrixBiggerThanZero(matrix, *getElement(), errors);
  AllocationMatrixCheck::checkTheEmptyMatrix(matrix, *getElement(), errors);
}

void RuleReservoirCheck::checkReleaseRule() {
  const auto settings =
      Scenario::getSettings<ReservoirRuleSettings>(getElement(), getScenario()->getSettingsManager());
  if (!settings->getRule()) return;
  ReleaseRuleCheckFactory::make(getScenario(), getElement(), mutableErrors())->check();
}
