#include <gtest/gtest.h>

#include "shapes/CoordinateConverter.h"
#include "support/ExpectThrow.h"

namespace {

constexpr double kMillimetre = 1e-3;         // m
constexpr double kArcSecond = 1.0 / 3600.0;  // °

CoordinateConverter utm(unsigned int geographic, unsigned int projected) {
  return CoordinateConverter(CoordinateSystem::fromEpsg(geographic),
                             CoordinateSystem::fromEpsg(projected));
}

}  // namespace

// The worked example of the ellipsoidal transverse Mercator in J. P. Snyder, "Map Projections -
// A Working Manual", U.S. Geological Survey Professional Paper 1395 (1987), pp. 269-270: on the
// Clarke 1866 ellipsoid, with k0 = 0.9996 and central meridian 75° W (UTM zone 18), the point
// 40°30' N, 73°30' W has x = 127,106.5 m, y = 4,484,124.4 m. UTM adds 500,000 m to x; NAD27 is
// the datum on Clarke 1866 and EPSG:26718 its zone 18 N. The manual gives the metres to 0.1 m, so
// the conversion must agree to half of that; its inverse example returns the angles to 0.1".
TEST(CoordinateConverter, APublishedControlPointConvertsBothWays) {
  const auto converter = utm(4267, 26718);
  const Point2D projected = converter.forward({-(73.0 + 30.0 / 60.0), 40.0 + 30.0 / 60.0});
  EXPECT_NEAR(projected.x, 500000.0 + 127106.5, 0.05);
  EXPECT_NEAR(projected.y, 4484124.4, 0.05);

  const Point2D geodetic = converter.inverse({627106.5, 4484124.4});
  EXPECT_NEAR(geodetic.x, -73.5, 0.1 * kArcSecond);
  EXPECT_NEAR(geodetic.y, 40.5, 0.1 * kArcSecond);
}

TEST(CoordinateConverter, UtmToGeodeticAndBackStaysWithinAMillimetreInBothHemispheres) {
  struct Case {
    unsigned int geographic, projected;
    Point2D position;  // easting, northing (m)
  };
  const Case cases[] = {
      {4674, 31983, {193000.0, 8249000.0}},      // SIRGAS 2000 / UTM 23S, near Brasília
      {4674, 31984, {761234.567, 8937654.321}},  // SIRGAS 2000 / UTM 24S, the edge of the zone
      {4326, 32633, {433000.25, 4640000.75}},    // WGS 84 / UTM 33N
      {4326, 32723, {500000.0, 10000000.0}},     // WGS 84 / UTM 23S, the origin
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.projected);
    const auto converter = utm(c.geographic, c.projected);
    const Point2D geodetic = converter.inverse(c.position);
    const Point2D back = converter.forward(geodetic);
    EXPECT_NEAR(back.x, c.position.x, kMillimetre);
    EXPECT_NEAR(back.y, c.position.y, kMillimetre);
  }
}

TEST(CoordinateConverter, AZonesCentralMeridianAndTheEquatorFallOnItsFalseOrigin) {
  // Zone 24 is centred on 39° W; a southern zone counts northings from 10,000 km at the equator.
  const auto converter = utm(4674, 31984);
  const Point2D origin = converter.forward({-39.0, 0.0});
  EXPECT_NEAR(origin.x, 500000.0, kMillimetre);
  EXPECT_NEAR(origin.y, 10000000.0, kMillimetre);
  EXPECT_NEAR(converter.forward({-39.0, -10.0}).x, 500000.0, kMillimetre);
  // Longitude comes first: a point east of the meridian has a larger easting.
  EXPECT_GT(converter.forward({-38.0, -10.0}).x, 500000.0);
  EXPECT_LT(converter.forward({-38.0, -10.0}).y, 10000000.0);
}

TEST(CoordinateConverter, APositionOutsideTheSystemIsRefusedAndTheConverterGoesOn) {
  const auto converter = utm(4674, 31983);
  EXPECT_THROW_TEXT(converter.forward({-45.0, 100.0}), std::runtime_error,
                    "CoordinateConverter: (-45, 100) cannot be converted from EPSG:4674 (SIRGAS "
                    "2000) to EPSG:31983 (SIRGAS 2000 / UTM zone 23S)");
  EXPECT_NEAR(converter.forward({-45.0, 0.0}).x, 500000.0, kMillimetre);
}
