#include "service/RequestListAvailableRequestProcessor.h"

#include "service/ProjectConfigsLoader.h"

bool RequestListAvailableRequestProcessor::serve() {
  const auto projects = ProjectConfigsLoader::loadProjectConfigs(getFolder());
  return reply("Responder com lista de projetos disponíveis",
               ProjectConfigsLoader::createJsonOfAvailableProjects(projects));
}
