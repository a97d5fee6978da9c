#include "service/RequestSceneryNetworkRequestProcessor.h"

#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "core/Demand.h"
#include "core/Junction.h"
#include "core/Link.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "service/JsonText.h"
#include "service/ProjectLocation.h"
#include "service/ProjectSession.h"

namespace {

std::string number(double value) {
  char text[64];
  std::snprintf(text, sizeof(text), "%.17g", value);
  return text;
}

std::string head(const Element& element) {
  return "{\"Name\": " + JsonText::quote(element.getName()) +
         ",\"id\": " + std::to_string(element.getId());
}

std::string place(const Node& node) {
  return ",\"lat\": " + number(node.getY()) + ",\"lon\": " + number(node.getX()) + "}";
}

std::string endOf(const std::shared_ptr<Node>& node) {
  return node ? std::to_string(node->getId()) : std::string("-1");
}

void append(std::string& list, const std::string& item) {
  list += (list.empty() ? "" : ",") + item;
}

}  // namespace

bool RequestSceneryNetworkRequestProcessor::serve() {
  print("Inicializando o parse do JSON\n");
  const auto request = requestJson();
  const std::string path = ProjectLocation::projectPath(getFolder(), request);
  const std::string scenery = sceneryOf(request);
  const std::string code = !request.contains("code")        ? std::string()
                           : request.at("code").is_string() ? request.at("code").get<std::string>()
                                                            : request.at("code").dump();
  print("Carregando projeto\n");
  const ProjectSession session(path, ProjectSession::Access::readOnly);
  const auto scenario = session.scenario(scenery);
  print("Projeto carregado. Montando JSON de rede.\n");
  std::string demands, reservoirs, junctions, links;
  for (const auto& element : scenario->getSortedElements()) {
    if (const auto demand = std::dynamic_pointer_cast<Demand>(element)) {
      append(demands, head(*demand) + ",\"type\": " +
                          std::to_string(static_cast<int>(demand->getType())) + place(*demand));
    } else if (const auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      append(reservoirs, head(*reservoir) + place(*reservoir));
    } else if (const auto junction = std::dynamic_pointer_cast<Junction>(element)) {
      append(junctions, head(*junction) + place(*junction));
    } else if (const auto link = std::dynamic_pointer_cast<Link>(element)) {
      append(links, head(*link) + ",\"sourceid\": " + endOf(link->getUpstream()) +
                        ",\"destid\": " + endOf(link->getDownstream()) + "}");
    }
  }
  const std::string network = "{\"code\": " + JsonText::quote(code) + ",\"demands\": [" + demands +
                              "],\"reservoirs\": [" + reservoirs + "],\"junctions\": [" +
                              junctions + "],\"links\": [" + links + "]}";
  print("Iniciando envio de rede JSON montada.\n");
  return reply("Responder desenho de rede de um cenario", network);
}
