#include "ScenarioFindings.h"

#include "HostText.h"
#include "checks/SceneryCheck.h"
#include "scenario/PriorityScenario.h"

std::string ScenarioFindings::lineOf(const CheckCompleteness::ErrorStruct& finding) {
  const std::string& message = finding.message;
  const bool opensPlace = !message.empty() && message.back() == ':';
  return message + (opensPlace ? " " : ": ") + finding.elementName;
}

std::size_t ScenarioFindings::checkAndPrint(const std::shared_ptr<Scenario>& scenario,
                                            std::ostream& out) {
  scenario->executeSceneryCheck();
  return printLast(*scenario, out);
}

std::size_t ScenarioFindings::printLast(const Scenario& scenario, std::ostream& out) {
  std::size_t printed = 0;
  if (const auto& check = scenario.getSceneryCheck()) {
    for (const auto& finding : check->getAllErrors()) {
      out << lineOf(finding) << '\n';
      ++printed;
    }
  }
  const auto* priority = dynamic_cast<const PriorityScenario*>(&scenario);
  if (priority && priority->getInfeasibleDate()) {
    out << tr("{1}: no feasible allocation on {2}",
              {scenario.getName(), priority->getInfeasibleDate()->toString("%d-%m-%Y")})
        << '\n';
    ++printed;
  }
  return printed;
}
