#include <gtest/gtest.h>

#include "core/ConfigurationHeader.h"
#include "support/ExpectThrow.h"

TEST(ConfigurationHeader, DefaultsSettersAndRefusals) {
  ConfigurationHeader::reset();
  EXPECT_EQ(ConfigurationHeader::getPrecision(), 5u);
  EXPECT_EQ(ConfigurationHeader::getNumOfLinesInChart(), 50u);
  EXPECT_FALSE(ConfigurationHeader::isSaveResults());
  EXPECT_TRUE(ConfigurationHeader::isSaveOnlyOneResults());
  EXPECT_TRUE(ConfigurationHeader::isLoadResults());
  EXPECT_EQ(ConfigurationHeader::getUrlPortToWebService(), 80u);
  EXPECT_EQ(ConfigurationHeader::getUtmZone(), 24u);
  EXPECT_EQ(ConfigurationHeader::getUtmHemisphere(), "Sul");
  EXPECT_EQ(ConfigurationHeader::getMaxNumberOfErrors(), 20u);
  ASSERT_EQ(ConfigurationHeader::getCoreReservoirColors().size(), 3u);
  EXPECT_EQ(ConfigurationHeader::getCoreReservoirColors()[0].g, 246u);
  EXPECT_EQ(ConfigurationHeader::getCoreReservoirColors()[2].value, 0.0);

  ConfigurationHeader::setUtmZone(60);
  EXPECT_THROW_TEXT(ConfigurationHeader::setUtmZone(61), std::invalid_argument,
                    "ConfigurationHeader::setUtmZone: invalid zone");
  EXPECT_THROW_TEXT(ConfigurationHeader::setUtmZone(0), std::invalid_argument,
                    "ConfigurationHeader::setUtmZone: invalid zone");
  EXPECT_EQ(ConfigurationHeader::getUtmZone(), 60u);
  ConfigurationHeader::setUtmHemisphere("Norte");
  EXPECT_THROW_TEXT(ConfigurationHeader::setUtmHemisphere("Leste"), std::invalid_argument,
                    "invalid HemisphereType value");
  EXPECT_EQ(ConfigurationHeader::getUtmHemisphere(), "Norte");

  EXPECT_FALSE(ConfigurationHeader::isOldTrafficLimit(7));
  ConfigurationHeader::setOldTrafficLimit(7, true);
  EXPECT_TRUE(ConfigurationHeader::isOldTrafficLimit(7));
  ConfigurationHeader::reset();
  EXPECT_FALSE(ConfigurationHeader::isOldTrafficLimit(7));
  EXPECT_EQ(ConfigurationHeader::getUtmZone(), 24u);
}
