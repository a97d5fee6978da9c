#pragma once

#include <algorithm>

#include "common/Date.h"
#include "core/Element.h"

// A reservoir's water balance over the period of a date, from its results (hm³).
struct WaterBalance {
  double final;    // initial + inflows + rain - evaporation - release - spill
  double largest;  // the largest of those volumes, and at least 1: the scale of a tolerance
};

inline WaterBalance waterBalanceOf(const Element& reservoir, const Date& date) {
  const auto value = [&](SerieType type) {
    return reservoir.getOutputSerie(type, 0)->getValue(date);
  };
  WaterBalance balance{0.0, 1.0};
  for (SerieType in : {SerieType::initialVolume, SerieType::upstreamControlledVolume,
                       SerieType::upstreamUncontrolledVolume, SerieType::precipitatedVolume}) {
    balance.final += value(in);
    balance.largest = std::max(balance.largest, value(in));
  }
  for (SerieType out :
       {SerieType::evaporatedVolume, SerieType::releasedVolume, SerieType::spilledVolume}) {
    balance.final -= value(out);
    balance.largest = std::max(balance.largest, value(out));
  }
  return balance;
}
