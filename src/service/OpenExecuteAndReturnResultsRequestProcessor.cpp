#include "service/OpenExecuteAndReturnResultsRequestProcessor.h"

#include <filesystem>
#include <nlohmann/json.hpp>

#include "core/Scenario.h"
#include "reports/CSVWriteResults.h"
#include "service/ProjectLocation.h"
#include "service/ProjectSession.h"
#include "service/TemporaryWorkspace.h"
#include "service/ZipArchive.h"

bool OpenExecuteAndReturnResultsRequestProcessor::serve() {
  const auto request = requestJson();
  const std::string path = ProjectLocation::projectPath(getFolder(), request);
  std::vector<std::string> names;
  for (const auto& name : request.at("sceneries")) {
    names.push_back(name.get<std::string>());
    ProjectLocation::checkName("scenery", names.back());
  }
  const TemporaryWorkspace workspace;
  const auto results = workspace.path() / "results";
  const auto archivePath = workspace.path() / "project.zip";
  std::vector<std::filesystem::path> files;
  {
    const ProjectSession session(path, ProjectSession::Access::readOnly);
    std::vector<std::shared_ptr<Scenario>> scenarios;
    for (const auto& name : names) {
      scenarios.push_back(session.scenario(name));
      session.loadLatestResults(scenarios.back());
    }
    files = CSVWriteResults::writeScenarios(scenarios, results);
  }
  ZipArchive archive(archivePath.string(), 6, 'w');
  for (const auto& file : files) {
    archive.zip_entry_open(std::filesystem::relative(file, results).generic_string());
    archive.zip_entry_fwrite(file.string());
    archive.zip_entry_close();
  }
  archive.zip_close();
  return replyWithFile("Resposta para Abrir, executar e retornar resultados de projeto",
                       archivePath);
}
