#include <gtest/gtest.h>

#include <functional>

#include "project/JsonLoadException.h"
#include "project/JsonProjectLoader.h"
#include "project/ProjectFileSupport.h"
#include "support/ExpectThrow.h"

using projectfile::replaced;
using BadProjectFile = projectfile::ProjectFileTest;

namespace {

struct BadFile {
  std::string name;
  std::function<void()> check;
};

// A row: the text must fail to load with one JsonLoadException line that is reason, or that
// names the place and then gives reason.
BadFile bad(std::string name, std::string text, std::string reason) {
  return {std::move(name), [text, reason] {
            try {
              JsonProjectLoader::loadText(text);
              ADD_FAILURE() << "loaded";
            } catch (const JsonLoadException& error) {
              const std::string what = error.what();
              const std::string ending = ": " + reason;
              EXPECT_TRUE(what == reason ||
                          (what.size() > ending.size() &&
                           what.compare(what.size() - ending.size(), ending.size(), ending) == 0))
                  << what;
              EXPECT_EQ(what.find('\n'), std::string::npos) << what;
            }
          }};
}

// The golden project with the first occurrence of from replaced by to.
std::string golden(const std::string& from, const std::string& to) {
  return replaced(projectfile::readFile(projectfile::goldenPath()), from, to);
}

// The golden priority project with the first occurrence of from replaced by to.
std::string priorityGolden(const std::string& from, const std::string& to) {
  return replaced(projectfile::readFile(projectfile::priorityGoldenPath()), from, to);
}

std::string required(const std::string& key) { return "the key \"" + key + "\" is required"; }

std::string expected(const std::string& what, const std::string& found) {
  return "expected " + what + ", found " + found;
}

}  // namespace

TEST_F(BadProjectFile, EachFlawHasItsMessage) {
  const std::vector<BadFile> files = {
      bad("empty", "",
          "not a JSON text: parse error at line 1, column 1: "
          "syntax error while parsing value - unexpected end of input; "
          "expected '[', '{', or a literal"),
      bad("cut", "{\"scenarios\":[",
          "not a JSON text: parse error at line 1, column 15: "
          "syntax error while parsing value - unexpected end of input; "
          "expected '[', '{', or a literal"),
      bad("root is an array", "[]", "the file: " + expected("an object", "a list")),
      bad("no scenarios", "{\"project\":{}}", "the file: " + required("scenarios")),
      bad("scenarios not an array", "{\"scenarios\":{}}", expected("a list", "an object")),
      bad("scenario type", golden("Simulador por regras", "Curva de garantia da bacia"),
          expected("a scenario type this program reads",
                   "the text \"Curva de garantia da bacia\"")),
      bad("method type", golden("\"Janela\"", "\"Curva de garantia da bacia\""),
          expected("an execution method this program reads",
                   "the text \"Curva de garantia da bacia\"")),
      bad("no name", golden("\"name\":\"Vale\",", ""), required("name")),
      bad("no id", golden("\"id\":7,", ""), required("id")),
      bad("null databaseId", golden("\"databaseId\":3", "\"databaseId\":null"),
          required("databaseId") + ", found null"),
      bad("id as text", golden("\"id\":7", "\"id\":\"7\""),
          expected("a whole number", "the text \"7\"")),
      bad("fraction for an id", golden("\"databaseId\":3", "\"databaseId\":3.5"),
          expected("a whole number", "the number 3.5")),
      bad("true for a flag", golden("\"enable\":1", "\"enable\":true"),
          expected("0 or 1", "the boolean true")),
      bad("periodicity", golden("Mensal", "Semanal"),
          "JsonLoadInterval::load(): invalid periodicity"),
      bad("month 13", golden("\"month\":12", "\"month\":13"), "Invalid month."),
      bad("window size 0", golden("\"windowSize\":12", "\"windowSize\":0"),
          "ExecutionMethod::setWindowSize(): the window size must be at "
          "least 1"),
      bad("element type", golden("\"Dreno\"", "\"Usina\""),
          expected("a node type (element type of a node)", "the text \"Usina\"")),
      bad("link type among nodes", golden("\"Dreno\"", "\"Trecho natural\""),
          expected("a node type (element type of a node)", "the text \"Trecho natural\"")),
      bad("id used twice", golden("\"id\":3,", "\"id\":2,"),
          "the id 2 is already used by another element"),
      bad("no regression", golden(",\"regressionTech\":{\"type\":\"CubicSpline\"}", ""),
          required("regressionTech")),
      bad("rule type", golden("Liberação constante", "Liberação mágica"),
          "ReleaseRuleFactory::make(): invalid ReleaseRuleType"),
      bad("negative release", golden("{\"Release\":2.5", "{\"Release\":-2.5"),
          "ConstReleaseRule::setRelease(): the release is a negative value"),
      bad("rule without its object",
          golden(",\"ReleaseRule\":{\"Release\":2.50000000000000000}", ""),
          required("ReleaseRule")),
      bad("no upstream", golden("{\"upstream\":1,", "{"), required("upstream")),
      bad("upstream names nothing", golden("\"upstream\":1", "\"upstream\":99"),
          expected("the id of an element of the scenario", "the number 99")),
      bad("upstream is a link", golden("\"upstream\":2", "\"upstream\":5"),
          expected("the id of a node (the ends of a link must be nodes)", "the number 5")),
      bad("sense", golden("\"Invertido\"", "\"Lateral\""),
          expected("\"Original\" or \"Invertido\"", "the text \"Lateral\"")),
      bad("bidirectional to a demand",
          golden("\"bidirectional\":0,\"senseInfo\":{\"originalSourceVolumesRange\":[]",
                 "\"bidirectional\":1,\"senseInfo\":{\"originalSourceVolumesRange\":[]"),
          "Link::setIsBidirectional: invalid birectional link"),
      bad("UTM zone", golden("\"utmZone\":23", "\"utmZone\":61"),
          "ConfigurationHeader::setUtmZone: invalid zone"),
      bad("hemisphere", golden("\"Sul\"", "\"Leste\""), "invalid HemisphereType value"),
      bad("colour without blue", golden("\"b\":30,", ""), required("b")),
  };
  for (const BadFile& file : files) {
    SCOPED_TRACE(file.name);
    file.check();
  }
}

// The rows of a priority scenario, its settings and its link add-ons: a missing key, a value of
// the wrong type, or a list of the wrong length, each with the loader's usual kind of failure.
TEST_F(BadProjectFile, EachFlawOfAPriorityProjectHasItsMessage) {
  const std::string pumping = "JsonLoadLinkAddonPumping::load(): ";
  const std::string monthly = "JsonLoadSettingsPriorityReservoir::load(): ";
  const std::string firstMonth = "[{\"value\":0.50000000000000000,\"priority\":1}],";
  const std::vector<BadFile> files = {
      bad("state type", priorityGolden("Por reservatório mensal", "Por bacia"),
          "JsonLoadPriorityScenario::load(): invalid HydrologicalStateType"),
      bad("shares not a list",
          priorityGolden("\"xValues\":[0.50000000000000000]", "\"xValues\":0.5"),
          expected("a list", "the number 0.5")),
      bad("reservoir without priorities", priorityGolden("\"priorities\":[2,40],", ""),
          required("priorities")),
      bad("priorities as text", priorityGolden("\"priorities\":[2,40]", "\"priorities\":\"2,40\""),
          expected("a list", "the text \"2,40\"")),
      bad("true for the system mark",
          priorityGolden("\"isHydrologicalStateSystem\":1", "\"isHydrologicalStateSystem\":true"),
          expected("0 or 1", "the boolean true")),
      bad("zone without its share",
          priorityGolden("{\"value\":0.25000000000000000,\"priority\":3}", "{\"priority\":3}"),
          required("value")),
      bad("eleven months", priorityGolden(firstMonth, ""),
          monthly + "HydrologicalZonesMonthly must hold 12 months"),
      bad("a month without its zone",
          priorityGolden("[{\"value\":0.50000000000000000,\"priority\":2}]", "[]"),
          monthly + "the months of HydrologicalZonesMonthly must hold as many zones"),
      bad("a month not a list",
          priorityGolden("[{\"value\":0.50000000000000000,\"priority\":2}]", "{}"),
          expected("a list", "an object")),
      bad("demand priority as text",
          priorityGolden("\"priorities\":[1,7]", "\"priorities\":[1,\"7\"]"),
          expected("a whole number", "the text \"7\"")),
      bad("add-on without its type", priorityGolden("{\"linkAddonType\":\"Propagação\"}", "{}"),
          required("linkAddonType")),
      bad("two flows for a pump",
          priorityGolden("\"flows\":[1.25000000000000000]", "\"flows\":[1.25,2.5]"),
          pumping + "flows must hold one flow"),
      bad("eleven costs",
          priorityGolden("\"costsPerMonth\":[0.00000000000000000,", "\"costsPerMonth\":["),
          pumping + "costsPerMonth must hold 12 costs"),
      bad("period start as text",
          priorityGolden("\"initialValue\":360", "\"initialValue\":\"360\""),
          expected("a whole number", "the text \"360\"")),
      bad("periods not a list",
          priorityGolden("\"periods\":[{\"initialValue\":360,\"finalValue\":1080}]",
                         "\"periods\":{\"initialValue\":360,\"finalValue\":1080}"),
          expected("a list", "an object")),
  };
  for (const BadFile& file : files) {
    SCOPED_TRACE(file.name);
    file.check();
  }
}

TEST_F(BadProjectFile, AMissingFileIsNamedAsSuch) {
  projectfile::TemporaryFolder folder;
  EXPECT_THROW_TEXT(JsonProjectLoader::load(folder.file("absent.sjson")), std::runtime_error,
                    "JsonLoadBuilder:load() error in open JSON file");
}

// The configuration is read after the scenarios: a flaw found there still leaves the process as
// it was, the obsolete link limit of a scenario unrecorded and the next scenario id unchanged.
TEST_F(BadProjectFile, AFailedLoadChangesNothing) {
  const std::string limited =
      golden("\"union\":0,\"bidirectional\":0",
             "\"linkTrafficLimit\":{\"maxValue\":9.5},\"union\":0,\"bidirectional\":0");
  ScenarioManager::getInstance().setNextScenarioId(4);
  for (const auto& [from, to] : {std::pair<std::string, std::string>{"\"Sul\"", "\"Leste\""},
                                 {"\"precision\":3", "\"precision\":\"3\""}}) {
    SCOPED_TRACE(to);
    EXPECT_ANY_THROW(JsonProjectLoader::loadText(replaced(limited, from, to)));
    EXPECT_EQ(ConfigurationHeader::getUtmZone(), 24u);
    EXPECT_EQ(ConfigurationHeader::getPrecision(), 5u);
    EXPECT_FALSE(ConfigurationHeader::isOldTrafficLimit(7));
    EXPECT_EQ(ScenarioManager::getInstance().getNextScenarioId(), 4u);
  }
  JsonProjectLoader::loadText(limited);
  EXPECT_TRUE(ConfigurationHeader::isOldTrafficLimit(7));
  EXPECT_FALSE(ConfigurationHeader::isOldTrafficLimit(2));
}
