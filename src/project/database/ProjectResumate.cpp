#include "project/database/ProjectResumate.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "project/JsonLoadHelper.h"
#include "project/JsonLoadInterval.h"
#include "vocabulary/EnumFactories.h"

namespace {

using json = nlohmann::json;
using Helper = JsonLoadHelper;

ProjectResumate::SceneryResumate readScenery(const json& item) {
  return {Helper::getRequired<std::string>(item, "name"),
          SceneryTypeFactoryByString::make(Helper::getRequired<std::string>(item, "type")),
          ExecutionTypeFactoryByString::make(
              Helper::getRequired<std::string>(item, "ExecutionMethodType")),
          JsonLoadInterval::load(Helper::findRequired(item, "interval"))};
}

std::string periodText(const Interval& interval) {
  const EnumPeriodicity& periodicity = interval.getPeriodicity();
  return interval.getBegin().toString(periodicity.getFormat()) + " a " +
         interval.getEnd().toString(periodicity.getFormat()) + " (" + periodicity.getName() + ")";
}

}  // namespace

std::vector<ProjectResumate::SceneryResumate> ProjectResumate::getResumate(
    const std::string& path) {
  std::ifstream file(std::filesystem::u8path(path), std::ios::in);
  if (!file) throw std::runtime_error("ProjectResumate::getResumate() error in open JSON file");
  const json root = json::parse(file);
  std::vector<SceneryResumate> resumate;
  for (const json& item : Helper::asArray(Helper::findRequired(root, "scenarios"))) {
    resumate.push_back(readScenery(item));
  }
  return resumate;
}

std::string ProjectResumate::toText(const std::vector<SceneryResumate>& resumate) {
  if (resumate.empty()) return "Projeto sem cenários.\n";
  std::string text;
  for (std::size_t i = 0; i < resumate.size(); ++i) {
    const SceneryResumate& scenery = resumate[i];
    text += "Cenário " + std::to_string(i + 1) + ": " + scenery.name + "\n";
    text += "  Tipo: " + scenery.type.getName() + "\n";
    text += "  Método de execução: " + scenery.executionType.getName() + "\n";
    text += "  Período: " + periodText(scenery.interval) + "\n";
  }
  return text;
}
