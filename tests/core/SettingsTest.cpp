#include <gtest/gtest.h>

#include "core/LinkRuleSettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "core/ReservoirRuleSettings.h"
#include "core/SettingsManager.h"
#include "rules/ConstReleaseRule.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"
#include "vocabulary/Vocabulary.h"


TEST(SettingsManager, StoresByIdAndCopiesDeeply) {
  SettingsManager manager;
  manager.make(4, Vocabulary::of(ScenarioType::ruleSimulator), Vocabulary::of(ElementType::reservoir));
  auto settings = std::dynamic_pointer_cast<ReservoirRuleSettings>(manager.getSettings(4));
  ASSERT_NE(settings, nullptr);
  EXPECT_EQ(settings->getRule(), nullptr);
  auto rule = std::make_shared<ConstReleaseRule>();
  rule->setRelease(5.0);
  settings->setRule(rule);

  SettingsManager copy = manager;
  auto copied = std::static_pointer_cast<ReservoirRuleSettings>(copy.getSettings(4));
  EXPECT_NE(copied, settings);
  EXPECT_NE(copied->getRule(), settings->getRule());
  EXPECT_EQ(copied->getRule()->getRelease(Date()), 5.0);

  manager.destroy(4);
  EXPECT_THROW_TEXT(manager.getSettings(4), std::invalid_argument,
                    "SettingsManager::getParameters(): invalid elementId");
  EXPECT_THROW_TEXT(manager.destroy(4), std::invalid_argument,
                    "SettingsManager::destroyParameter(): invalid elementId");
}

TEST(RuleSettings, MatrixFormsRoundTrip) {
  JunctionRuleSettings settings;
  EXPECT_THROW_TEXT(settings.setAllocation({}), std::runtime_error,
                    "RuleSettings::setAllocation(): element id is not configured.");
  settings.setElementId(3);
  const std::vector<std::vector<double>> matrix = {{3, 5, 9}, {0, 0, 0}, {10, 4, 6}, {20, 8, 12}};
  settings.setAllocationByMatrixOfDouble(matrix);
  EXPECT_EQ(settings.getAllocation().at(5), (std::vector<double>{0, 4, 8}));
  EXPECT_EQ(settings.getMatrixFromAllocationMatrix(), matrix);

  settings.addAllocationLine();
  settings.addAllocationLink(11);
  EXPECT_EQ(settings.getAllocation().at(3).size(), 4u);
  EXPECT_EQ(settings.getAllocation().at(11), (std::vector<double>(4, 0.0)));
  settings.removeAllocationLink(5);
  EXPECT_EQ(settings.getAllocation().count(5), 0u);
  EXPECT_THROW_TEXT(settings.setAllocationByMatrixOfDouble({{4, 5}, {0, 0}}),
                    std::invalid_argument,
                    "setAllocationByMatrixOfDouble(): Invalid elementId in matrix");
}

TEST(RuleScenario, AllocationMatricesFollowTheNetwork) {
  NetworkBuilder net(NetworkBuilder::monthly(2000, 2000));
  auto junction = net.node(ElementType::junction);
  auto a = net.node(ElementType::junction);
  auto b = net.node(ElementType::junction);
  auto toA = net.link(junction, a);
  auto toB = net.link(junction, b);
  net.scenario->posAddElement(toB, false);
  const auto& settings = net.scenario->getSettingsManager().getSettings(junction->getId());
  const auto& matrix = std::static_pointer_cast<RuleSettings>(settings)->getAllocation();
  EXPECT_EQ(matrix.size(), 3u);
  EXPECT_EQ(matrix.at(junction->getId()), std::vector<double>{0.0});
  EXPECT_EQ(matrix.at(toB->getId()), std::vector<double>{0.0});
  net.scenario->removeElement(toA->getId());
  EXPECT_EQ(matrix.count(toA->getId()), 0u);
  EXPECT_TRUE(junction->getDownstreamLinks().size() == 1 && a->getUpstreamLinks().empty());
  EXPECT_NE(std::dynamic_pointer_cast<LinkRuleSettings>(
                net.scenario->getSettingsManager().getSettings(toB->getId())),
            nullptr);
  EXPECT_THROW_TEXT(Scenario::getSettings<ReservoirRuleSettings>(junction,
                                                                 net.scenario->getSettingsManager()),
                    std::invalid_argument, "Passed element is not valid for element setting");
}

TEST(ReservoirGuaranteeCurveSettings, CopyKeepsTheMarkAndOwnsAnotherRule) {
  ReservoirGuaranteeCurveSettings settings;
  settings.setElementId(2);
  settings.setIsGuaranteeCurve(true);
  auto rule = std::make_shared<ConstReleaseRule>();
  rule->setRelease(3.0);
  settings.setRule(rule);
  auto copy = std::dynamic_pointer_cast<ReservoirGuaranteeCurveSettings>(settings.copy());
  ASSERT_NE(copy, nullptr);
  EXPECT_TRUE(copy->getIsGuaranteeCurve());
  EXPECT_EQ(copy->getElementId(), 2u);
  ASSERT_NE(copy->getRule(), nullptr);
  EXPECT_NE(copy->getRule(), rule);
  rule->setRelease(8.0);
  EXPECT_EQ(copy->getRule()->getRelease(Date()), 3.0);
}
