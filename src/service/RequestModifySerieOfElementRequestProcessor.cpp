#include "service/RequestModifySerieOfElementRequestProcessor.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "common/Serie.h"
#include "core/Element.h"
#include "core/Scenario.h"
#include "project/database/SaveProject.h"
#include "service/ProjectLocation.h"
#include "service/ProjectSession.h"
#include "service/SerieModifierWithJson.h"

bool RequestModifySerieOfElementRequestProcessor::serve() {
  if (!getSettings().allowChanges) {
    throw std::runtime_error(
        "RequestModifySerieOfElementRequestProcessor: changes are not enabled on this service");
  }
  const auto request = requestJson();
  const std::string path = ProjectLocation::projectPath(getFolder(), request);
  const std::string scenery = sceneryOf(request);
  const unsigned int elementId = elementIdOf(request);
  // Required, though the series changed is always "Demanda".
  request.at("serietypename").get<std::string>();
  const auto& changes = request.at("serie");
  {
    ProjectSession session(path, ProjectSession::Access::readWrite);
    const auto scenario = session.scenario(scenery);
    const auto& element = scenario->getElement(elementId);
    const auto& serie = element->getInputSerie(SerieType::demand);
    if (!serie) {
      throw std::invalid_argument("RequestModifySerieOfElementRequestProcessor: element " +
                                  std::to_string(elementId) + " has no series \"Demanda\"");
    }
    SerieModifierWithJson::modifySerie(*scenario, *element, *serie, changes, getLog());
    if (!SaveProject::saveAfterCommitData(path, nullptr)) {
      throw std::runtime_error("RequestModifySerieOfElementRequestProcessor: cannot write " + path);
    }
    session.commit();
  }
  return reply("Responder alt. serie de elemento", "none");
}
