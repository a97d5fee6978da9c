#include "UpdateCommand.h"

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "UsageError.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "service/http/UpdateCAVAPI.h"
#include "service/http/UpdateSerieAPI.h"
#include "vocabulary/Vocabulary.h"

namespace {

std::shared_ptr<Reservoir> reservoirNamed(const std::shared_ptr<Scenario>& scenario,
                                          const std::string& name) {
  for (const auto& element :
       ElementsFilter::filterByType(scenario->getElements(), ElementSets::reservoir())) {
    if (element->getName() == name) return std::dynamic_pointer_cast<Reservoir>(element);
  }
  throw UsageError(
      tr("scenario \"{1}\" has no reservoir named \"{2}\"", {scenario->getName(), name}));
}

// Each input series the service has, one request a series; the number of series updated.
int updateSeries(const std::shared_ptr<Scenario>& scenario,
                 const std::shared_ptr<Reservoir>& reservoir, Console& console) {
  int updated = 0;
  for (const SerieType kind : UpdateSerieAPI::getServiceSerieTypes()) {
    UpdateSerieAPI update(reservoir, scenario, kind);
    const std::string& serie = Vocabulary::of(kind).getName();
    if (update.update()) {
      ++updated;
      console.out << tr("{1}: \"{2}\" updated with {3} value(s)",
                        {reservoir->getName(), serie,
                         std::to_string(update.getVecOfPairOfDateValue().size())})
                  << '\n';
    } else {
      console.out << tr("{1}: the web service has no \"{2}\"", {reservoir->getName(), serie})
                  << '\n';
    }
  }
  return updated;
}

int updateCurve(const std::shared_ptr<Scenario>& scenario,
                const std::shared_ptr<Reservoir>& reservoir, Console& console) {
  UpdateCAVAPI update(reservoir, scenario);
  if (!update.update()) {
    console.out << tr("{1}: the web service has no level-area-volume table", {reservoir->getName()})
                << '\n';
    return 0;
  }
  console.out << tr("{1}: level-area-volume table replaced by {2} row(s)",
                    {reservoir->getName(), std::to_string(update.getRowsStored())})
              << '\n';
  return 1;
}

}  // namespace

Command UpdateCommand::describe() {
  return {"update",
          "kova update P.sjson --scenario NAME --reservoir NAME --series|--cav",
          tr("update a reservoir's input series or curve from the web service"),
          HostText::help("update"),
          {{"scenario", "reservoir"}, {}, {"series", "cav"}, 1, 1},
          run};
}

int UpdateCommand::run(const CommandLine& line, Console& console) {
  if (line.has("series") == line.has("cav")) {
    throw UsageError(tr("give one of --series and --cav"));
  }
  OpenProject project(line.positional(0), nullptr, OpenProject::Access::readWrite);
  const auto scenario = project.scenario(line.required("scenario"));
  const auto reservoir = reservoirNamed(scenario, line.required("reservoir"));
  const int updated = line.has("series") ? updateSeries(scenario, reservoir, console)
                                         : updateCurve(scenario, reservoir, console);
  return updated > 0 ? exitOk : exitFindings;
}
