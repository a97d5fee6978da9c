#include "InfoCommand.h"

#include <map>

#include "ExitStatus.h"
#include "OpenProject.h"
#include "core/Scenario.h"
#include "project/database/ProjectResumate.h"

namespace {

// The number of elements of each kind, in the vocabulary's order of kinds.
std::map<int, std::pair<std::string, unsigned int>> countByKind(const Scenario& scenario) {
  std::map<int, std::pair<std::string, unsigned int>> counts;
  for (const auto& element : scenario.getElements()) {
    const auto& type = element->getElementType();
    auto& entry = counts[static_cast<int>(type.getType())];
    entry.first = type.getName();
    ++entry.second;
  }
  return counts;
}

}  // namespace

Command InfoCommand::describe() {
  return {"info",
          "kova info P.sjson",
          "summarise a project and its scenarios",
          "Prints each scenario's kind, execution method and period, then its elements counted\n"
          "by kind.\n",
          {{}, {}, {}, 1, 1},
          run};
}

int InfoCommand::run(const CommandLine& line, Console& console) {
  OpenProject project(line.positional(0));
  console.out << ProjectResumate::toText(ProjectResumate::getResumate(project.path().string()));
  for (const auto& scenario : project.scenarios()) {
    console.out << "\nElementos de " << scenario->getName() << ":\n";
    for (const auto& [kind, entry] : countByKind(*scenario)) {
      console.out << "  " << entry.first << ": " << entry.second << '\n';
    }
  }
  return exitOk;
}
