#include "project/JsonProjectLoader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "core/ConfigurationHeader.h"
#include "project/JsonLoadException.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadPlace.h"
#include "project/JsonLoadProjectConfig.h"
#include "project/JsonLoadScenarioFactory.h"
#include "scenario/ScenarioManager.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

// The parser's message without its code, and cut: it quotes the text it last read, which may be
// as long as the file.
constexpr std::size_t kParseMessageLength = 200;

json parse(std::istream& text) {
  try {
    return json::parse(text);
  } catch (const json::parse_error& error) {
    std::string message = error.what();
    const auto code = message.find("] ");
    if (code != std::string::npos) message.erase(0, code + 2);
    if (message.size() > kParseMessageLength)
      message = message.substr(0, kParseMessageLength) + "...";
    throw JsonLoadException("not a JSON text: " + message);
  }
}

}  // namespace

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::load(const std::string& path) {
  std::ifstream file(std::filesystem::u8path(path), std::ios::in);
  if (!file) throw std::runtime_error("JsonLoadBuilder:load() error in open JSON file");
  return loadJson(parse(file));
}

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::loadText(const std::string& text) {
  std::istringstream stream(text);
  return loadJson(parse(stream));
}

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::loadJson(const json& root) {
  try {
    return Helper::at(root, [&] { return read(root); });
  } catch (const JsonLoadException& error) {
    if (error.where() == nullptr) throw;
    throw JsonLoadException(JsonLoadPlace::of(root, error.where()) + ": " + error.what());
  }
}

std::vector<std::shared_ptr<Scenario>> JsonProjectLoader::read(const json& root) {
  std::vector<std::shared_ptr<Scenario>> scenarios;
  std::map<unsigned int, bool> oldTrafficLimit;
  unsigned int nextId = 1;
  const json& items = Helper::findRequired(root, "scenarios");
  for (const json& item : Helper::asArray(items)) {
    const json& type = Helper::findRequired(item, "type");
    const auto loader = Helper::known(type, "a scenario type this program reads", [&] {
      return JsonLoadScenarioFactory::make(Helper::get<std::string>(type));
    });
    scenarios.push_back(Helper::at(item, [&] { return loader->load(item); }));
    const unsigned int id = scenarios.back()->getId();
    oldTrafficLimit[id] = loader->isOldTrafficLimit();
    nextId = std::max(nextId, id + 1);
  }
  JsonLoadProjectConfig::load(root);
  for (const auto& [id, used] : oldTrafficLimit) ConfigurationHeader::setOldTrafficLimit(id, used);
  ScenarioManager::getInstance().setNextScenarioId(nextId);
  return scenarios;
}
