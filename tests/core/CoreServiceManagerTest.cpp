#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/Demand.h"
#include "core/ElementFactory.h"
#include "core/LinkRuleSettings.h"
#include "core/NetworkUtils.h"
#include "core/RuleSettings.h"
#include "managers/CoreServiceManager.h"
#include "operation/ExecutionContinuous.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/SQLStorage.h"
#include "scenario/RuleScenario.h"
#include "support/ExpectThrow.h"
#include "support/TemporaryFolder.h"
#include "vocabulary/Vocabulary.h"

namespace {

using CSM = CoreServiceManager;

std::vector<unsigned int> ids(const std::vector<std::shared_ptr<Link>>& links) {
  std::vector<unsigned int> result;
  for (const auto& link : links) result.push_back(link->getId());
  return result;
}

class CoreServiceManagerTest : public ::testing::Test {
 protected:
  std::shared_ptr<Node> node(ElementType type) {
    return CSM::createNodeNoDatabase(scenario, type, Point2D{}, true);
  }
  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down) {
    return CSM::createLinkNoDatabase(scenario, ElementType::naturalLink, up, down, true);
  }
  std::shared_ptr<RuleSettings> ruleSettings(const std::shared_ptr<Element>& element) const {
    return Scenario::getSettings<RuleSettings>(element, scenario->getSettingsManager());
  }

  std::shared_ptr<Scenario> scenario = std::make_shared<RuleScenario>(
      std::make_shared<ExecutionContinuous>(), 1,
      Interval(Date(2000, 1, 1), Date(2000, 12, 1), Vocabulary::of(Periodicity::monthly)), "T");
};

}  // namespace

TEST_F(CoreServiceManagerTest, CreatedNodesArePlacedNamedAndConfigured) {
  auto reservoir = CSM::createNodeNoDatabase(scenario, ElementType::reservoir, {3.5, -7.0}, true);
  EXPECT_EQ(reservoir->getX(), 3.5);
  EXPECT_EQ(reservoir->getY(), -7.0);
  EXPECT_EQ(reservoir->getName(), "Reservatório0");
  EXPECT_TRUE(ruleSettings(reservoir)->isElementIdConfigured());

  auto junction = CSM::createNodeNoDatabase(scenario, ElementType::junction, {}, 40, false);
  EXPECT_EQ(junction->getId(), 40u);
  EXPECT_EQ(CSM::createElementNoDatabase(scenario, ElementType::basin, true)->getId(), 41u);
  EXPECT_EQ(scenario->getElements().size(), 3u);

  EXPECT_THROW_TEXT(CSM::createNodeNoDatabase(scenario, ElementType::naturalLink, {}, true),
                    std::invalid_argument, "CoreServiceManager::createNode(): invalid node type");
  EXPECT_THROW_TEXT(CSM::createElementNoDatabase(scenario, ElementType::genericDemand, true),
                    std::invalid_argument, "ElementFactory::make(): invalid elementType");
  EXPECT_THROW_TEXT(
      CSM::createLinkNoDatabase(scenario, ElementType::junction, reservoir, junction, true),
      std::invalid_argument, "CoreServiceManager::createLink(): invalid link type");
  EXPECT_EQ(scenario->getElements().size(), 3u);
}

TEST_F(CoreServiceManagerTest, NewLinksJoinTheirNodesAndTheAllocationMatrix) {
  auto reservoir = node(ElementType::reservoir);
  auto drain = node(ElementType::drain);
  auto river = link(reservoir, drain);
  EXPECT_EQ(river->getUpstream(), reservoir);
  EXPECT_EQ(ids(drain->getUpstreamLinks()), std::vector<unsigned int>{river->getId()});
  EXPECT_EQ(ruleSettings(reservoir)->getAllocation().count(river->getId()), 1u);

  auto other = node(ElementType::junction);
  auto copy = CSM::createLinkCopyNoDatabase(river, scenario, other, drain, false);
  EXPECT_EQ(copy->getType(), ElementType::naturalLink);
  EXPECT_EQ(copy->getName(), river->getName());
  EXPECT_NE(copy->getLinkAddon(), river->getLinkAddon());
  EXPECT_EQ(copy->getLinkAddon()->getType(), river->getLinkAddon()->getType());
  EXPECT_EQ(ruleSettings(other)->getAllocation().count(copy->getId()), 1u);
}

TEST_F(CoreServiceManagerTest, NodesAlreadyJoinedEitherWayRefuseASecondLink) {
  auto a = node(ElementType::junction);
  auto b = node(ElementType::junction);
  link(a, b);
  const struct { std::shared_ptr<Node> up, down; } attempts[] = {{a, b}, {b, a}};
  for (const auto& attempt : attempts) {
    EXPECT_THROW_TEXT(CSM::createLinkNoDatabase(scenario, ElementType::artificialLink, attempt.up,
                                                attempt.down, true),
                      NetworkUtils::RepeatedLinkException,
                      "There is already a link with this upstream and downstream");
  }
  EXPECT_EQ(scenario->getElements().size(), 3u);
  EXPECT_EQ(a->getDownstreamLinks().size() + a->getUpstreamLinks().size(), 1u);
  EXPECT_EQ(b->getDownstreamLinks().size() + b->getUpstreamLinks().size(), 1u);
}

TEST_F(CoreServiceManagerTest, DeletingANodeRemovesItsLinksFromItsNeighbours) {
  auto demand = std::static_pointer_cast<Demand>(node(ElementType::humanDemand));
  auto junction = node(ElementType::junction);
  auto drain = node(ElementType::drain);
  auto toJunction = link(demand, junction);
  auto toDrain = link(demand, drain);
  auto onward = link(junction, drain);
  demand->setDemandReturnPercentage(toJunction, 30.0);
  demand->setDemandReturnPercentage(toDrain, 50.0);

  CSM::deleteElementNoDatabase(scenario, junction);
  EXPECT_EQ(scenario->getElements().size(), 3u);
  EXPECT_EQ(ids(demand->getDownstreamLinks()), std::vector<unsigned int>{toDrain->getId()});
  EXPECT_EQ(demand->getDemandReturnPercentages(), std::vector<double>{50.0});
  EXPECT_EQ(ids(drain->getUpstreamLinks()), std::vector<unsigned int>{toDrain->getId()});
  EXPECT_EQ(ruleSettings(demand)->getAllocation().count(toJunction->getId()), 0u);
  for (unsigned int gone : {junction->getId(), toJunction->getId(), onward->getId()}) {
    EXPECT_FALSE(scenario->getSettingsManager().contains(gone));
  }
}

TEST_F(CoreServiceManagerTest, ChangingALinkTypeKeepsWhatTheScenarioHoldsAboutIt) {
  auto demand = std::static_pointer_cast<Demand>(node(ElementType::humanDemand));
  auto junction = node(ElementType::junction);
  auto drain = node(ElementType::drain);
  auto canal = link(demand, junction);
  auto toDrain = link(demand, drain);
  demand->setDemandReturnPercentage(canal, 30.0);
  demand->setDemandReturnPercentage(toDrain, 50.0);
  const double d = demand->getId(), c = canal->getId(), t = toDrain->getId();
  ruleSettings(demand)->setAllocationByMatrixOfDouble({{d, c, t}, {0, 0, 0}, {10, 4, 6}});
  const auto allocation = ruleSettings(demand)->getAllocation();
  canal->getInputSerie(SerieType::linkLimit)->fill(12.0);
  Scenario::getSettings<LinkRuleSettings>(canal, scenario->getSettingsManager())
      ->setValues({1.0, 2.0});

  auto changed = CSM::changeLinkTypeNoDatabase(canal, ElementType::artificialLink, scenario);
  EXPECT_EQ(changed->getType(), ElementType::artificialLink);
  EXPECT_EQ(changed->getId(), canal->getId());
  EXPECT_EQ(changed->getName(), canal->getName());
  EXPECT_EQ(changed->getUpstream(), demand);
  EXPECT_EQ(changed->getDownstream(), junction);
  EXPECT_EQ(scenario->getElement(changed->getId()), changed);
  ASSERT_EQ(junction->getUpstreamLinks().size(), 1u);
  EXPECT_EQ(junction->getUpstreamLinks()[0], changed);
  EXPECT_EQ(demand->getDemandReturnPercentage(changed), 30.0);
  EXPECT_EQ(demand->getDemandReturnPercentage(toDrain), 50.0);
  EXPECT_EQ(ruleSettings(demand)->getAllocation(), allocation);
  EXPECT_EQ(changed->getInputSerie(SerieType::linkLimit)->getValue(Date(2000, 6, 1)), 12.0);
  EXPECT_EQ(
      Scenario::getSettings<LinkRuleSettings>(changed, scenario->getSettingsManager())->getValues(),
      (std::vector<double>{1.0, 2.0}));

  EXPECT_EQ(CSM::changeLinkTypeNoDatabase(changed, ElementType::artificialLink, scenario), changed);
  EXPECT_THROW_TEXT(CSM::changeLinkTypeNoDatabase(changed, ElementType::drain, scenario),
                    std::invalid_argument,
                    "CoreServiceManager::changeLinkType(): invalid link type");
}

namespace {

// The same edits, this time with an open project database that must follow them.
class CoreServiceManagerDatabaseTest : public CoreServiceManagerTest {
 protected:
  void SetUp() override {
    SQLStorage::getInstance(folder.file("edits.sjson.sqlite"));
    DatabaseInsert::insertSceneryEntryInDatabase(*scenario);
  }
  void TearDown() override { SQLStorage::deleteInstance(); }

  static int64_t rowOf(const std::shared_ptr<Element>& element) {
    return DatabaseSearch::getElementCodeInDatabase(SQLStorage::getInstance().getStorageRef(),
                                                    *element);
  }
  // Whether the database still has the Element row with that key.
  static bool hasRow(unsigned int databaseId) {
    const auto probe = ElementFactory::make(ElementType::junction);
    probe->setDatabaseId(databaseId);
    return rowOf(probe) != 0;
  }

  TemporaryFolder folder{"kova_core_"};
};

}  // namespace

TEST_F(CoreServiceManagerDatabaseTest, EveryFormGivesTheNewElementItsRowAsTheMemoryFormWould) {
  auto reservoir = CSM::createNode(scenario, ElementType::reservoir, {1.0, 2.0}, true);
  auto junction = CSM::createNode(scenario, ElementType::junction, {}, 40, false);
  auto basin = CSM::createElement(scenario, ElementType::basin, 50, true);
  auto demand = CSM::createElement(scenario, ElementType::humanDemand, true);
  auto river = CSM::createLink(scenario, ElementType::naturalLink, reservoir, junction, true);
  auto copy =
      CSM::createLinkCopy(river, scenario, junction, std::static_pointer_cast<Node>(demand), false);
  EXPECT_EQ(junction->getId(), 40u);
  EXPECT_EQ(basin->getId(), 50u);
  EXPECT_EQ(basin->getName(), "Bacia50");
  EXPECT_EQ(copy->getName(), river->getName());
  EXPECT_EQ(ruleSettings(junction)->getAllocation().count(copy->getId()), 1u);
  for (const auto& element : scenario->getElements()) {
    SCOPED_TRACE(element->getName());
    EXPECT_GT(element->getDatabaseId(), 0u);
    EXPECT_EQ(rowOf(element), element->getDatabaseId());
  }

  const unsigned int riverRow = river->getDatabaseId();
  const auto canal = CSM::changeLinkType(river, ElementType::artificialLink, scenario);
  EXPECT_FALSE(hasRow(riverRow));
  EXPECT_EQ(rowOf(canal), canal->getDatabaseId());

  std::vector<unsigned int> rows;
  for (const auto& gone : std::vector<std::shared_ptr<Element>>{junction, canal, copy}) {
    rows.push_back(gone->getDatabaseId());
  }
  CSM::deleteElement(scenario, junction);
  for (const unsigned int row : rows) EXPECT_FALSE(hasRow(row)) << row;
  EXPECT_TRUE(hasRow(reservoir->getDatabaseId()));
  EXPECT_EQ(scenario->getElements().size(), 3u);
}

TEST_F(CoreServiceManagerDatabaseTest, AnElementWhoseRowCannotBeWrittenLeavesTheScenario) {
  SQLStorage::deleteInstance();
  EXPECT_THROW_TEXT(CSM::createNode(scenario, ElementType::reservoir, {}, true), std::logic_error,
                    "SQLStorage::getInstance(): no project database is open");
  EXPECT_TRUE(scenario->getElements().empty());
}
