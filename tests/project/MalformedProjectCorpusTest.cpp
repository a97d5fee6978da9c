#include <gtest/gtest.h>

#include <functional>

#include "checks/SceneryCheck.h"
#include "project/JsonLoadException.h"
#include "project/JsonProjectLoader.h"
#include "project/ProjectFileSupport.h"
#include "support/ExpectThrow.h"

using projectfile::replaced;
using MalformedProjectCorpus = projectfile::ProjectFileTest;
using json = nlohmann::json;

namespace {

// One malformed file: what was done to which value of a good one.
struct Mutation {
  std::string name;
  json file;
};

// Values of another JSON type than value's, one of each kind a hand edit gives.
std::vector<json> wrongTypesFor(const json& value) {
  if (value.is_object()) return {json(), json(5), json::array()};
  if (value.is_array()) return {json(), json(5), json::object()};
  if (value.is_string()) return {json(), json(5), json("desconhecido")};
  return {json(), json("x"), json::array(), json(true)};
}

// Each member of each object of root removed, made null and given a value of another type.
void mutate(const json& root, json& value, const std::string& place,
            std::vector<Mutation>& mutations) {
  if (value.is_array()) {
    for (std::size_t i = 0; i < value.size(); ++i) {
      mutate(root, value[i], place + "/" + std::to_string(i), mutations);
    }
    return;
  }
  if (!value.is_object()) return;
  std::vector<std::string> keys;
  for (auto it = value.begin(); it != value.end(); ++it) keys.push_back(it.key());
  for (const std::string& key : keys) {
    const json kept = value[key];
    value.erase(key);
    mutations.push_back({place + "/" + key + " removed", root});
    for (const json& wrong : wrongTypesFor(kept)) {
      value[key] = wrong;
      mutations.push_back({place + "/" + key + " = " + wrong.dump(), root});
    }
    value[key] = kept;
    mutate(root, value[key], place + "/" + key, mutations);
  }
}

std::vector<Mutation> corpusOf(const std::string& path) {
  json root = json::parse(projectfile::readFile(path));
  std::vector<Mutation> mutations;
  mutate(root, root, "", mutations);
  return mutations;
}

// A refusal a user can act on: one line, the place first, none of the library's raw texts.
void expectOneLineNamingThePlace(const std::string& text) {
  EXPECT_EQ(text.find('\n'), std::string::npos) << text;
  EXPECT_TRUE(text.rfind("/", 0) == 0 || text.rfind("the file: ", 0) == 0) << text;
  for (const char* raw : {"[json.exception", "map::at", "Invalid json file"}) {
    EXPECT_EQ(text.find(raw), std::string::npos) << text;
  }
  EXPECT_LT(text.size(), 400u) << text;
}

}  // namespace

// Hundreds of hand-edit slips in both golden projects: each file either loads (the value was
// optional) or is refused with one line that names the place; nothing else escapes.
TEST_F(MalformedProjectCorpus, EveryRefusalIsOneLineNamingThePlace) {
  std::size_t refused = 0, loaded = 0;
  for (const std::string& golden : {projectfile::goldenPath(), projectfile::priorityGoldenPath()}) {
    for (const Mutation& mutation : corpusOf(golden)) {
      SCOPED_TRACE(mutation.name);
      try {
        JsonProjectLoader::loadJson(mutation.file);
        ++loaded;
      } catch (const JsonLoadException& error) {
        expectOneLineNamingThePlace(error.what());
        ++refused;
      } catch (const std::exception& error) {
        ADD_FAILURE() << "not a JsonLoadException: " << error.what();
      }
    }
  }
  EXPECT_GT(refused, 300u);
  EXPECT_GT(loaded, 0u);
}

TEST_F(MalformedProjectCorpus, RefusalsNameTheirPlaceExactly) {
  const std::string text = projectfile::readFile(projectfile::goldenPath());
  const std::string cidade = "/scenarios/0/nodes/2/node/element";
  const std::string names = " (scenario \"Vale\", element \"Cidade\")";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {replaced(text, "{\"scenarios\":[", "{\"scenarios\":{},\"a\":["),
       "/scenarios: expected a list, found an object"},
      {replaced(text, "\"id\":7", "\"id\":\"7\""),
       "/scenarios/0/id (scenario \"Vale\"): expected a whole number, found the text \"7\""},
      {replaced(text, "\"elementID\":2,\"AllocationMatrix\":[",
                "\"elementID\":2,\"AllocationMatrix\":null,\"x\":["),
       cidade + "/scenarioConf" + names + ": the key \"AllocationMatrix\" is required, found null"},
      {replaced(text, "\"scenarioConf\":{\"elementID\":2",
                "\"scenarioConf\":5,\"y\":{\"elementID\":2"),
       cidade + "/scenarioConf" + names + ": expected an object, found the number 5"},
      {replaced(text, "\"elementType\":\"Demanda humana\"", "\"elementType\":\"Demanda lunar\""),
       cidade + "/elementType" + names +
           ": expected a node type (element type of a node), found the text \"Demanda lunar\""},
  };
  for (const auto& [file, message] : cases) {
    SCOPED_TRACE(message);
    EXPECT_THROW_TEXT(JsonProjectLoader::loadText(file), JsonLoadException, message);
  }
}

// A junction whose matrix is gone passes nothing downstream: the checks say so, instead of a run
// that loses the water without a word.
TEST_F(MalformedProjectCorpus, ANodeWithoutItsMatrixIsAFindingOfTheChecks) {
  // Cidade becomes a junction with two enabled links downstream: Rio baixo, and Adutora moved to
  // run from Cidade to Foz, one way only.
  std::string junction =
      replaced(projectfile::readFile(projectfile::goldenPath()),
               "\"elementType\":\"Demanda humana\"", "\"elementType\":\"Junção\"");
  junction = replaced(junction, "\"name\":\"Rio baixo\",\"id\":6,\"databaseId\":16,\"enable\":0",
                      "\"name\":\"Rio baixo\",\"id\":6,\"databaseId\":16,\"enable\":1");
  junction =
      replaced(junction, "\"upstream\":0,\"downstream\":1", "\"upstream\":2,\"downstream\":3");
  junction = replaced(junction, "\"bidirectional\":1", "\"bidirectional\":0");
  const std::string withoutMatrix = replaced(junction, "\"scenarioConf\":{\"elementID\":2",
                                             "\"scenarioConf\":null,\"z\":{\"elementID\":2");
  for (const auto& [text, findings] :
       {std::pair<std::string, std::size_t>{junction, 0}, {withoutMatrix, 1}}) {
    const auto scenarios = JsonProjectLoader::loadText(text);
    scenarios[0]->executeSceneryCheck();
    std::size_t empty = 0;
    for (const auto& finding : scenarios[0]->getSceneryCheck()->getAllErrors()) {
      if (finding.message == "Matriz de alocação vazia:" && finding.elementName == "Cidade")
        ++empty;
    }
    EXPECT_EQ(empty, findings);
  }
}
