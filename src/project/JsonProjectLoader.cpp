#include "project/JsonProjectLoader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>

#include "core/ConfigurationHeader.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadProjectConfig.h"
#include "project/JsonLoadScenarioFactory.h"
#include "scenario/ScenarioManager.h"

using json = nlohmann::json;

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::load(const std::string& path) {
  std::ifstream file(std::filesystem::u8path(path), std::ios::in);
  if (!file) throw std::runtime_error("JsonLoadBuilder:load() error in open JSON file");
  return loadJson(json::parse(file));
}

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::loadText(const std::string& text) {
  return loadJson(json::parse(text));
}

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::loadJson(const json& root) {
  std::vector<std::shared_ptr<Scenario>> scenarios;
  std::map<unsigned int, bool> oldTrafficLimit;
  unsigned int nextId = 1;
  const json& items = JsonLoadHelper::findRequired(root, "scenarios");
  for (const json& item : JsonLoadHelper::asArray(items)) {
    const auto loader =
        JsonLoadScenarioFactory::make(JsonLoadHelper::getRequired<std::string>(item, "type"));
    scenarios.push_back(loader->load(item));
    const unsigned int id = scenarios.back()->getId();
    oldTrafficLimit[id] = loader->isOldTrafficLimit();
    nextId = std::max(nextId, id + 1);
  }
  JsonLoadProjectConfig::load(root);
  for (const auto& [id, used] : oldTrafficLimit) ConfigurationHeader::setOldTrafficLimit(id, used);
  ScenarioManager::getInstance().setNextScenarioId(nextId);
  return scenarios;
}
