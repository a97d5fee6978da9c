#include <gtest/gtest.h>

#include <functional>

#include "project/JsonLoadException.h"
#include "project/JsonProjectLoader.h"
#include "project/ProjectFileSupport.h"
#include "support/ExpectThrow.h"

using projectfile::replaced;
using BadProjectFile = projectfile::ProjectFileTest;
using json = nlohmann::json;

namespace {

struct BadFile {
  std::string name;
  std::function<void()> check;
};

// A row: the text must fail to load with exactly Exception and message.
template <typename Exception>
BadFile bad(std::string name, std::string text, std::string message) {
  return {std::move(name), [text, message] {
            EXPECT_THROW_TEXT(JsonProjectLoader::loadText(text), Exception, message);
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

const std::string kInvalid = "Invalid json file";

std::string typeError(const std::string& expected, const std::string& found) {
  return "[json.exception.type_error.302] type must be " + expected + ", but is " + found;
}

}  // namespace

TEST_F(BadProjectFile, EachFlawHasItsMessage) {
  const std::vector<BadFile> files = {
      bad<json::parse_error>("empty", "",
                             "[json.exception.parse_error.101] parse error at line 1, column 1: "
                             "syntax error while parsing value - unexpected end of input; "
                             "expected '[', '{', or a literal"),
      bad<json::parse_error>("cut", "{\"scenarios\":[",
                             "[json.exception.parse_error.101] parse error at line 1, column 15: "
                             "syntax error while parsing value - unexpected end of input; "
                             "expected '[', '{', or a literal"),
      bad<JsonLoadException>("root is an array", "[]", kInvalid),
      bad<JsonLoadException>("no scenarios", "{\"project\":{}}", kInvalid),
      bad<json::type_error>("scenarios not an array", "{\"scenarios\":{}}",
                            typeError("array", "object")),
      bad<std::invalid_argument>("scenario type",
                                 golden("Simulador por regras", "Curva de garantia"),
                                 "JsonLoadScenarioFactory::make(): invalid scenarioType"),
      bad<std::invalid_argument>("method type", golden("\"Janela\"", "\"Otimização\""),
                                 "JsonLoadExecutionMethodFactory::make(): invalid ExecutionType"),
      bad<JsonLoadException>("no name", golden("\"name\":\"Vale\",", ""), kInvalid),
      bad<JsonLoadException>("no id", golden("\"id\":7,", ""), kInvalid),
      bad<JsonLoadException>("null databaseId", golden("\"databaseId\":3", "\"databaseId\":null"),
                             kInvalid),
      bad<json::type_error>("id as text", golden("\"id\":7", "\"id\":\"7\""),
                            typeError("number", "string")),
      bad<json::type_error>("fraction for an id", golden("\"databaseId\":3", "\"databaseId\":3.5"),
                            typeError("integer", "number")),
      bad<json::type_error>("true for a flag", golden("\"enable\":1", "\"enable\":true"),
                            typeError("number", "boolean")),
      bad<std::invalid_argument>("periodicity", golden("Mensal", "Semanal"),
                                 "JsonLoadInterval::load(): invalid periodicity"),
      bad<std::invalid_argument>("month 13", golden("\"month\":12", "\"month\":13"),
                                 "Invalid month."),
      bad<std::invalid_argument>("window size 0", golden("\"windowSize\":12", "\"windowSize\":0"),
                                 "ExecutionMethod::setWindowSize(): the window size must be at "
                                 "least 1"),
      bad<std::invalid_argument>("element type", golden("\"Dreno\"", "\"Usina\""),
                                 "JsonLoadElementFactory::make(): invalid elementType"),
      bad<std::invalid_argument>("link type among nodes", golden("\"Dreno\"", "\"Trecho natural\""),
                                 "JsonLoadElementFactory::make(): invalid elementType"),
      bad<JsonLoadException>("id used twice", golden("\"id\":3,", "\"id\":2,"), kInvalid),
      bad<JsonLoadException>(
          "no regression", golden(",\"regressionTech\":{\"type\":\"CubicSpline\"}", ""), kInvalid),
      bad<std::invalid_argument>(
          "regression", golden("CubicSpline", "Linear"),
          "JsonLoadRegressionTechniqueFactory::make(): invalid regressionType"),
      bad<std::invalid_argument>("rule type", golden("Liberação constante", "Liberação mágica"),
                                 "ReleaseRuleFactory::make(): invalid ReleaseRuleType"),
      bad<std::invalid_argument>("negative release",
                                 golden("{\"Release\":2.5", "{\"Release\":-2.5"),
                                 "ConstReleaseRule::setRelease(): the release is a negative value"),
      bad<JsonLoadException>("rule without its object",
                             golden(",\"ReleaseRule\":{\"Release\":2.50000000000000000}", ""),
                             kInvalid),
      bad<JsonLoadException>("no upstream", golden("{\"upstream\":1,", "{"), kInvalid),
      bad<std::invalid_argument>("upstream names nothing",
                                 golden("\"upstream\":1", "\"upstream\":99"),
                                 "Scenario::getElement(): invalid elementId"),
      bad<std::invalid_argument>("upstream is a link", golden("\"upstream\":2", "\"upstream\":5"),
                                 "JsonLoadLink::load(): the ends of a link must be nodes"),
      bad<std::invalid_argument>("add-on type", golden("\"Nenhum\"", "\"Turbina\""),
                                 "JsonLoadLinkAddonFactory::make(): invalid linkAddonType"),
      bad<std::out_of_range>("sense", golden("\"Invertido\"", "\"Lateral\""), "map::at"),
      bad<std::invalid_argument>(
          "bidirectional to a demand",
          golden("\"bidirectional\":0,\"senseInfo\":{\"originalSourceVolumesRange\":[]",
                 "\"bidirectional\":1,\"senseInfo\":{\"originalSourceVolumesRange\":[]"),
          "Link::setIsBidirectional: invalid birectional link"),
      bad<std::invalid_argument>("UTM zone", golden("\"utmZone\":23", "\"utmZone\":61"),
                                 "ConfigurationHeader::setUtmZone: invalid zone"),
      bad<std::invalid_argument>("hemisphere", golden("\"Sul\"", "\"Leste\""),
                                 "invalid HemisphereType value"),
      bad<JsonLoadException>("colour without blue", golden("\"b\":30,", ""), kInvalid),
  };
  for (const BadFile& file : files) {
    SCOPED_TRACE(file.name);
    file.check();
  }
}

// The rows of a priority scenario, its settings and its link add-ons: a missing key, a value of
// the wrong type, or a value the model refuses, each with the loader's usual kind of failure.
TEST_F(BadProjectFile, EachFlawOfAPriorityProjectHasItsMessage) {
  const std::string reservoirZones = "PriorityReservoirSettings::setValueOfHydrologicalZone";
  const std::string pumping = "JsonLoadLinkAddonPumping::load(): ";
  const std::string monthly = "JsonLoadSettingsPriorityReservoir::load(): ";
  const std::string firstMonth = "[{\"value\":0.50000000000000000,\"priority\":1}],";
  const std::vector<BadFile> files = {
      bad<std::invalid_argument>("state type",
                                 priorityGolden("Por reservatório mensal", "Por bacia"),
                                 "JsonLoadPriorityScenario::load(): invalid HydrologicalStateType"),
      bad<json::type_error>("shares not a list",
                            priorityGolden("\"xValues\":[0.50000000000000000]", "\"xValues\":0.5"),
                            typeError("array", "number")),
      bad<JsonLoadException>("reservoir without priorities",
                             priorityGolden("\"priorities\":[2,40],", ""), kInvalid),
      bad<json::type_error>("priorities as text",
                            priorityGolden("\"priorities\":[2,40]", "\"priorities\":\"2,40\""),
                            typeError("array", "string")),
      bad<json::type_error>(
          "true for the system mark",
          priorityGolden("\"isHydrologicalStateSystem\":1", "\"isHydrologicalStateSystem\":true"),
          typeError("number", "boolean")),
      bad<JsonLoadException>(
          "zone without its share",
          priorityGolden("{\"value\":0.25000000000000000,\"priority\":3}", "{\"priority\":3}"),
          kInvalid),
      bad<std::invalid_argument>(
          "zone priority", priorityGolden("\"priority\":30}", "\"priority\":100}"),
          "PriorityReservoirSettings::setPriorityOfHydrologicalZone(): priority > 99"),
      bad<std::invalid_argument>("zone shares above the whole reservoir",
                                 priorityGolden("{\"value\":0.75", "{\"value\":0.85"),
                                 reservoirZones + "(): sum of values > 1.0"),
      bad<std::invalid_argument>("eleven months", priorityGolden(firstMonth, ""),
                                 monthly + "HydrologicalZonesMonthly must hold 12 months"),
      bad<std::invalid_argument>(
          "a month without its zone",
          priorityGolden("[{\"value\":0.50000000000000000,\"priority\":2}]", "[]"),
          monthly + "the months of HydrologicalZonesMonthly must hold as many zones"),
      bad<json::type_error>(
          "a month not a list",
          priorityGolden("[{\"value\":0.50000000000000000,\"priority\":2}]", "{}"),
          typeError("array", "object")),
      bad<std::invalid_argument>(
          "monthly zone priority", priorityGolden("\"priority\":12}", "\"priority\":120}"),
          "PriorityReservoirSettings::setPriorityOfHydrologicalZoneMonthly(): priority > 99"),
      bad<std::invalid_argument>(
          "monthly zone shares",
          priorityGolden("{\"value\":0.50000000000000000,\"priority\":3}",
                         "{\"value\":1.50000000000000000,\"priority\":3}"),
          "PriorityReservoirSettings::setValueOfHydrologicalZoneMonthly(): sum of values > 1.0"),
      bad<json::type_error>("demand priority as text",
                            priorityGolden("\"priorities\":[1,7]", "\"priorities\":[1,\"7\"]"),
                            typeError("number", "string")),
      bad<JsonLoadException>("add-on without its type",
                             priorityGolden("{\"linkAddonType\":\"Propagação\"}", "{}"), kInvalid),
      bad<std::invalid_argument>("add-on type", priorityGolden("\"Bombeamento\"", "\"Turbina\""),
                                 "JsonLoadLinkAddonFactory::make(): invalid linkAddonType"),
      bad<std::invalid_argument>(
          "two flows for a pump",
          priorityGolden("\"flows\":[1.25000000000000000]", "\"flows\":[1.25,2.5]"),
          pumping + "flows must hold one flow"),
      bad<std::invalid_argument>(
          "eleven costs",
          priorityGolden("\"costsPerMonth\":[0.00000000000000000,", "\"costsPerMonth\":["),
          pumping + "costsPerMonth must hold 12 costs"),
      bad<json::type_error>("period start as text",
                            priorityGolden("\"initialValue\":360", "\"initialValue\":\"360\""),
                            typeError("number", "string")),
      bad<json::type_error>(
          "periods not a list",
          priorityGolden("\"periods\":[{\"initialValue\":360,\"finalValue\":1080}]",
                         "\"periods\":{\"initialValue\":360,\"finalValue\":1080}"),
          typeError("array", "object")),
  };
  for (const BadFile& file : files) {
    SCOPED_TRACE(file.name);
    file.check();
  }
}

TEST_F(BadProjectFile, MissingAndEmptyFiles) {
  projectfile::TemporaryFolder folder;
  EXPECT_THROW_TEXT(JsonProjectLoader::load(folder.file("absent.sjson")), std::runtime_error,
                    "JsonLoadBuilder:load() error in open JSON file");
  projectfile::writeFile(folder.file("empty.sjson"), "");
  EXPECT_THROW_TEXT(
      JsonProjectLoader::load(folder.file("empty.sjson")), json::parse_error,
      "[json.exception.parse_error.101] parse error at line 1, column 1: syntax error "
      "while parsing value - unexpected end of input; expected '[', '{', or a "
      "literal");
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
