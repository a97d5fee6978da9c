#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/regression/CubicSplineTechnique.h"
#include "common/regression/Regression.h"
#include "common/regression/RegressionTechniqueFactory.h"
#include "support/ExpectThrow.h"

namespace {

// Slopes 2 on [0, 1] and 1 on [1, 2].
const std::vector<Point2D> kTable{{0, 0}, {1, 2}, {2, 3}};

TEST(CubicSplineTechniqueTest, InterpolatesAndExtrapolatesInStraightLines) {
  CubicSplineTechnique spline;
  spline.calculate(kTable);
  const std::pair<double, double> cases[] = {
      {0.5, 1.0},    // 0 + 2 * 0.5
      {1.5, 2.5},    // 2 + 1 * 0.5
      {-1.0, -2.0},  // first slope continued: 0 + 2 * -1
      {3.0, 4.0},    // last slope continued: 3 + 1 * 1
      {2.0, 3.0},    // last node
  };
  for (const auto& [x, y] : cases) {
    SCOPED_TRACE(x);
    EXPECT_DOUBLE_EQ(y, spline.fit(x));
  }
  // Volumes 0, 10, 30 hm³ at levels 100, 104, 106 m: at 20 hm³, 104 + (106 - 104) / 20 * 10.
  spline.calculate({0, 10, 30}, {100, 104, 106});
  EXPECT_DOUBLE_EQ(105.0, spline.fit(20.0));
}

TEST(CubicSplineTechniqueTest, BadTablesAreRefusedAndTheOldTableStays) {
  const std::string prefix = "CubicSplineTechnique::calculate(): ";
  CubicSplineTechnique spline;
  EXPECT_THROW_TEXT(spline.fit(1.0), std::logic_error, "CubicSplineTechnique::fit(): no table");
  spline.calculate(kTable);
  EXPECT_THROW_TEXT(spline.calculate({0, 1, 2}, {0, 1}), std::invalid_argument,
                    prefix + "x and y differ in size");
  EXPECT_THROW_TEXT(spline.calculate({{0, 0}, {1, 1}}), std::invalid_argument,
                    prefix + "at least three points are needed");
  for (const std::vector<double>& x : {std::vector<double>{0, 1, 1}, {0, 2, 1}}) {
    SCOPED_TRACE(testing::Message() << x[1] << ", " << x[2]);
    EXPECT_THROW_TEXT(spline.calculate(x, {0, 1, 2}), std::invalid_argument,
                      prefix + "x must be strictly increasing");
  }
  EXPECT_DOUBLE_EQ(1.0, spline.fit(0.5));
}

TEST(CubicSplineTechniqueTest, CopyKeepsItsOwnTable) {
  CubicSplineTechnique spline;
  spline.calculate(kTable);
  const std::shared_ptr<RegressionTechnique> copy = spline.copy();
  spline.calculate({0, 1, 2}, {0, 10, 20});
  EXPECT_DOUBLE_EQ(1.0, copy->fit(0.5));
  EXPECT_DOUBLE_EQ(5.0, spline.fit(0.5));
}

TEST(RegressionTest, FactoryTechniqueFitsThroughRegression) {
  const std::shared_ptr<RegressionTechnique> technique =
      RegressionTechniqueFactory::make(RegressionType::cubicSpline);
  EXPECT_EQ(RegressionType::cubicSpline, technique->getType());
  EXPECT_EQ("CubicSpline", technique->getName());
  EXPECT_DOUBLE_EQ(-2.0, Regression(kTable).fit(-1.0, *technique));
  EXPECT_THROW_TEXT(RegressionTechniqueFactory::make(static_cast<RegressionType>(7)),
                    std::invalid_argument,
                    "RegressionTechniqueFactory::make(): invalid regressionType");
}

}  // namespace
