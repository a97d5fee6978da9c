#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "core/ProjectStructure.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

TEST(ProjectStructure, DescribesScenariosAndKeepsOnlyThePickedElements) {
  NetworkBuilder net(NetworkBuilder::monthly(2000, 2000));
  auto reservoir = net.node(ElementType::reservoir);
  auto drain = net.node(ElementType::drain);
  auto link = net.link(reservoir, drain);
  const std::map<unsigned int, std::shared_ptr<Scenario>> sceneries = {{0, net.scenario}};

  const ProjectStructure project = ProjectStructure::describe("/tmp/p.sjson", sceneries);
  ASSERT_EQ(project.sceneries.size(), 1u);
  const SceneryStructure& scenery = project.sceneries[0];
  EXPECT_EQ(scenery.indicator.getType(), SceneryIndicator::ruleSimulator);
  EXPECT_EQ(scenery.name, "Teste");
  ASSERT_EQ(scenery.elements.size(), 3u);
  EXPECT_EQ(scenery.elements[2].name, link->getName());
  EXPECT_EQ(scenery.elements[2].elementType.getType(), ElementType::naturalLink);

  const auto picked = project.select({{0, {link->getId(), reservoir->getId()}}});
  ASSERT_EQ(picked.size(), 1u);
  ASSERT_EQ(picked[0].elements.size(), 2u);
  EXPECT_EQ(picked[0].elements[0].id, link->getId());
  EXPECT_EQ(picked[0].elements[1].id, reservoir->getId());

  EXPECT_THROW_TEXT(project.select({{1, {}}}), std::out_of_range,
                    "ProjectStructure::select(): invalid scenery position");
  EXPECT_THROW_TEXT(project.select({{0, {99}}}), std::invalid_argument,
                    "ProjectStructure::select(): invalid elementId");
}
