#include "service/RequestSerieOfElementRequestProcessor.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "common/Serie.h"
#include "core/Element.h"
#include "core/Scenario.h"
#include "service/ProjectLocation.h"
#include "service/ProjectSession.h"
#include "service/SerieSaverAsJson.h"

bool RequestSerieOfElementRequestProcessor::serve() {
  const auto request = requestJson();
  const std::string path = ProjectLocation::projectPath(getFolder(), request);
  const std::string scenery = sceneryOf(request);
  const unsigned int elementId = elementIdOf(request);
  // Required, though the reply is always the series "Demanda".
  request.at("serietypename").get<std::string>();
  std::string json;
  {
    const ProjectSession session(path, ProjectSession::Access::readOnly);
    const auto& element = session.scenario(scenery)->getElement(elementId);
    const auto& serie = element->getInputSerie(SerieType::demand);
    if (!serie) {
      throw std::invalid_argument("RequestSerieOfElementRequestProcessor: element " +
                                  std::to_string(elementId) + " has no series \"Demanda\"");
    }
    json = SerieSaverAsJson::getJson(*serie);
  }
  return reply("Responder serie de elemento", json);
}
