#include <gtest/gtest.h>

#include <typeinfo>

#include "core/ElementFactory.h"
#include "core/LinkAddonFactory.h"
#include "operation/ExecutionContinuous.h"
#include "project/JsonLoadElementFactory.h"
#include "project/JsonLoadExecutionMethodFactory.h"
#include "project/JsonLoadLinkAddonFactory.h"
#include "project/JsonLoadRegressionTechniqueFactory.h"
#include "project/JsonLoadReleaseRuleFactory.h"
#include "project/JsonLoadScenarioFactory.h"
#include "project/JsonLoadSettingsFactory.h"
#include "project/JsonSaveElementFactory.h"
#include "project/JsonSaveExecutionMethodFactory.h"
#include "project/JsonSaveLink.h"
#include "project/JsonSaveLinkAddonFactory.h"
#include "project/JsonSaveNode.h"
#include "project/JsonSavePriorityScenery.h"
#include "project/JsonSaveRegressionTechniqueFactory.h"
#include "project/JsonSaveReleaseRuleFactory.h"
#include "project/JsonSaveRuleScenery.h"
#include "project/JsonSaveSceneryFactory.h"
#include "project/JsonSaveSettingsFactory.h"
#include "rules/ReleaseRuleFactory.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "scenario/RuleScenario.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

std::shared_ptr<Scenario> emptyScenario() {
  const Interval interval(Date(2001, 1, 1), Date(2001, 12, 1),
                          Vocabulary::of(Periodicity::monthly));
  return std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, interval, "F");
}

}  // namespace

// Each element type is made by its reader's factory under its name, and written by the writer of
// its kind; nodes and links are told apart.
TEST(ProjectFactories, EveryElementType) {
  const auto scenario = emptyScenario();
  std::vector<std::string> readable;
  for (const auto& key : JsonLoadElementFactory::nodeKeys()) {
    const auto element = JsonLoadElementFactory::makeNode(key, scenario)->getElement();
    EXPECT_EQ(element->getElementType().getName(), key);
    EXPECT_TRUE(std::dynamic_pointer_cast<Node>(element)) << key;
    readable.push_back(key);
  }
  for (const auto& key : JsonLoadElementFactory::linkKeys()) {
    const auto element = JsonLoadElementFactory::makeLink(key, scenario)->getElement();
    EXPECT_EQ(element->getElementType().getName(), key);
    EXPECT_TRUE(std::dynamic_pointer_cast<Link>(element)) << key;
    readable.push_back(key);
  }
  std::sort(readable.begin(), readable.end());
  EXPECT_EQ(readable, JsonSaveElementFactory::keys());
}

// Each rule, simulation or optimisable, goes through its writer and its reader and comes back the
// same.
TEST(ProjectFactories, EveryReleaseRuleRoundTrips) {
  const auto scenario = emptyScenario();
  EXPECT_EQ(JsonSaveReleaseRuleFactory::keys(), JsonLoadReleaseRuleFactory::keys());
  for (const auto& key : JsonLoadReleaseRuleFactory::keys()) {
    SCOPED_TRACE(key);
    const auto rule = ReleaseRuleFactory::make(key);
    const std::string text = JsonSaveReleaseRuleFactory::make(rule)->toJson();
    const auto read = ReleaseRuleFactory::make(key);
    JsonLoadReleaseRuleFactory::make(key, read, scenario)->load(nlohmann::json::parse(text));
    EXPECT_EQ(JsonSaveReleaseRuleFactory::make(read)->toJson(), text);
  }
  // Each missing dependency of a two-reservoir rule is written null on its own.
  auto node = ElementFactory::makeReservoir();
  scenario->addElement(node, false, 3);
  auto rule = std::make_shared<VolDepTwoStaticReleaseRule>();
  rule->setReservoirDependency2(node);
  EXPECT_EQ(JsonSaveReleaseRuleFactory::make(rule)->toJson(),
            "{\"Reservoir1\":null,\"Reservoir2\":3,\"VolumePercentageD1\":[],"
            "\"VolumePercentageD2\":[],\"Release\":[]}");
}

// Each add-on goes through its writer and its reader and comes back of the same class.
TEST(ProjectFactories, EveryLinkAddonRoundTrips) {
  for (const auto& key : JsonLoadLinkAddonFactory::keys()) {
    SCOPED_TRACE(key);
    const auto addon =
        LinkAddonFactory::make(Vocabulary::linkAddonTypes().findByName(key)->getType());
    const std::string text = JsonSaveLinkAddonFactory::make(addon)->toJson();
    const auto link = std::static_pointer_cast<Link>(ElementFactory::makeNaturalLink());
    JsonLoadLinkAddonFactory::make(key, link)->load(nlohmann::json::parse(text));
    const auto& read = link->getLinkAddon();
    EXPECT_EQ(typeid(*read), typeid(*addon));
    EXPECT_EQ(JsonSaveLinkAddonFactory::make(read)->toJson(), text);
  }
}

// What is written can be read: the writers and the readers know the same kinds.
TEST(ProjectFactories, ReadersAndWritersKnowTheSameKinds) {
  EXPECT_EQ(JsonLoadScenarioFactory::keys(), JsonSaveSceneryFactory::keys());
  EXPECT_EQ(JsonLoadExecutionMethodFactory::keys(), JsonSaveExecutionMethodFactory::keys());
  EXPECT_EQ(JsonLoadLinkAddonFactory::keys(), JsonSaveLinkAddonFactory::keys());
  EXPECT_EQ(JsonLoadRegressionTechniqueFactory::keys(), JsonSaveRegressionTechniqueFactory::keys());
  EXPECT_EQ(JsonLoadSettingsFactory::keys(), JsonSaveSettingsFactory::keys());
  const auto& methods = JsonLoadExecutionMethodFactory::make("Janela")->load(
      nlohmann::json::object(), emptyScenario()->getInterval());
  EXPECT_EQ(methods->getExecutionType().getType(), ExecutionType::windowed);
}

TEST(ProjectFactories, UnknownKeysHaveTheirMessages) {
  const auto scenario = emptyScenario();
  const auto link = std::static_pointer_cast<Link>(ElementFactory::makeNaturalLink());
  const std::vector<std::pair<std::function<void()>, std::string>> misses = {
      {[] { JsonLoadScenarioFactory::make("Curva de garantia da bacia"); },
       "JsonLoadScenarioFactory::make(): invalid scenarioType"},
      {[] { JsonSaveSceneryFactory::make(nullptr); },
       "JsonSaveSceneryFactory::make(): invalid scenarioType"},
      {[] { JsonLoadExecutionMethodFactory::make("Curva de garantia da bacia"); },
       "JsonLoadExecutionMethodFactory::make(): invalid ExecutionType"},
      {[&] { JsonLoadElementFactory::makeNode("Trecho", scenario); },
       "JsonLoadElementFactory::make(): invalid elementType"},
      {[&] { JsonLoadElementFactory::makeLink("Reservatório", scenario); },
       "JsonLoadElementFactory::make(): invalid elementType"},
      {[&] { JsonLoadLinkAddonFactory::make("Propulsão", link); },
       "JsonLoadLinkAddonFactory::make(): invalid linkAddonType"},
      {[] { JsonLoadRegressionTechniqueFactory::make("Linear"); },
       "JsonLoadRegressionTechniqueFactory::make(): invalid regressionType"},
      {[] { JsonSaveRegressionTechniqueFactory::make(nullptr); },
       "JsonSaveRegressionTechniqueFactory::make(): invalid regressionType"},
      {[&] { JsonLoadReleaseRuleFactory::make("Liberação via rede neural", nullptr, scenario); },
       "JsonLoadReleaseRuleFactory::make(): invalid ReleaseRuleType"},
  };
  for (const auto& [make, message] : misses) {
    SCOPED_TRACE(message);
    EXPECT_THROW_TEXT(make(), std::invalid_argument, message);
  }
}

TEST(ProjectFactories, WritersWithoutWhatTheyNeed) {
  EXPECT_EQ(JsonSaveRuleScenery(nullptr).toJson(), "");
  EXPECT_EQ(JsonSavePriorityScenery(nullptr).toJson(), "");
  EXPECT_THROW_TEXT(JsonSavePriorityScenery(emptyScenario()).toJson(), std::invalid_argument,
                    "JsonSavePriorityScenery::toJson(): the scenario is no priority scenario");
  const auto node = std::static_pointer_cast<Node>(ElementFactory::makeJunction());
  EXPECT_THROW_TEXT(JsonSaveNode(node, nullptr).toJsonScenarioConf(), std::runtime_error,
                    "JsonSaveElement: scenario pointer is nullptr!");
  const auto loose = std::static_pointer_cast<Link>(ElementFactory::makeArtificialLink());
  EXPECT_THROW_TEXT(JsonSaveLink(loose, emptyScenario()).toJson(), std::invalid_argument,
                    "JsonSaveLink::toJson(): the link lacks an end");
}
