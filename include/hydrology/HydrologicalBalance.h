#pragma once

#include <memory>

#include "common/Date.h"
#include "core/Cav.h"
#include "core/Element.h"
#include "core/Reservoir.h"

// The arithmetic of water over one period, whose length depends on the periodicity: flows in
// m³/s, volumes in hm³, heights of water in mm, areas in km².
class HydrologicalBalance {
 public:
  virtual ~HydrologicalBalance() = default;

  // The volume of a flow over the period of date: m³/s -> hm³.
  virtual double hm3(const Date& date, double flow) const = 0;
  // The flow of a volume over the period of date: hm³ -> m³/s.
  virtual double m3s(const Date& date, double volume) const = 0;

  // A height of water over an area: mm on km² -> hm³.
  static double volume(double height, double area) { return height * area / 1000.0; }

  // The curve of the reservoir's working table over the given columns ({2, 1} volume to area,
  // {2, 0} volume to level), with the reservoir's interpolator.
  static Cav makeCAV(const std::shared_ptr<Reservoir>& reservoir, const std::vector<int>& columns);
  // The same curve, kept by the reservoir between lookups while its working table is unchanged.
  // Lookups over it give what lookups over makeCAV's curve give.
  static const Cav& curve(const std::shared_ptr<Reservoir>& reservoir, const std::vector<int>& columns);
  // curve() from volume to area, and from volume to level.
  static const Cav& areaCurve(const std::shared_ptr<Reservoir>& reservoir);
  static const Cav& levelCurve(const std::shared_ptr<Reservoir>& reservoir);
  // The area at volume over a volume-to-area curve, km²; 0 for a volume within 0.0001 of 0.
  static double area(const Cav& cav, double volume);
  // The level at volume over a volume-to-level curve, m; 0 for a volume within 0.0001 of 0.
  static double level(const Cav& cav, double volume);

  // The reservoir's volume at the end of the period, hm³, from the volume at its start, what
  // entered through links and what left through them (hm³). Precipitation and evaporation act on
  // the area at the start; with zeroContribution precipitation and natural inflow count as zero.
  // The result may be negative: callers clamp it.
  double balance(const std::shared_ptr<Reservoir>& reservoir, const Date& date, double volume,
                 bool zeroContribution, double upstreamVolume, double downstreamVolume) const;

  // The volume that entered the node through its enabled incoming links over the period of date
  // ("Vazão efluente" of the links), hm³.
  double calcTotalUpstreamVolume(const std::shared_ptr<Element>& element, const Date& date,
                                 unsigned int windowIndex) const;
  // The volume that left the node through its enabled outgoing links ("Vazão afluente"), hm³.
  double calcTotalDownStreamVolume(const std::shared_ptr<Element>& element, const Date& date,
                                   unsigned int windowIndex) const;

 private:
  // An empty lake has no area and no level: the table is not asked for volumes near zero.
  static double atVolume(const Cav& cav, double volume);
};

class HydrologicalBalanceDaily : public HydrologicalBalance {
 public:
  double hm3(const Date& date, double flow) const override;
  double m3s(const Date& date, double volume) const override;
};

// Months of 28 to 31 days.
class HydrologicalBalanceMonthly : public HydrologicalBalance {
 public:
  double hm3(const Date& date, double flow) const override;
  double m3s(const Date& date, double volume) const override;
};

// Years of 365 or 366 days.
class HydrologicalBalanceYearly : public HydrologicalBalance {
 public:
  double hm3(const Date& date, double flow) const override;
  double m3s(const Date& date, double volume) const override;
};

// Makes the balance of a periodicity. Throws std::invalid_argument
// "HydrologicalBalanceFactory::make(): invalid periodicity" for a value outside the vocabulary.
class HydrologicalBalanceFactory {
 public:
  static std::shared_ptr<HydrologicalBalance> make(Periodicity periodicity);
  static std::shared_ptr<HydrologicalBalance> makeDaily();
  static std::shared_ptr<HydrologicalBalance> makeMonthly();
  static std::shared_ptr<HydrologicalBalance> makeYearly();
};
