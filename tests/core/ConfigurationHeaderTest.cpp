#include <gtest/gtest.h>

#include "core/ConfigurationHeader.h"
#include "support/ExpectThrow.h"

// Refused values leave the header as it was; reset brings back the defaults.
TEST(ConfigurationHeader, SettersRefuseAndResetRestores) {
  ConfigurationHeader::reset();
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
