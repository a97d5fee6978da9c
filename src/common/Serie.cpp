#include "common/Serie.h"

#include <algorithm>
#include <cmath>

#include "common/PeriodWalker.h"

Serie::Serie(const Interval& interval, Enum<SerieType> type, const Enum<Unit>& unit)
    : interval(interval), type(std::move(type)), unit(unit) {}

double Serie::getValue(const Date& date) const {
  auto it = mapOfJulianToValues.find(Date::julian(date));
  return it == mapOfJulianToValues.end() ? kEmptyValue : it->second;
}

double Serie::getValue(const Date& date, int& julian) const {
  auto it = mapOfJulianToValues.find(Date::julian(date));
  if (it == mapOfJulianToValues.end()) return kEmptyValue;
  julian = static_cast<int>(it->first);
  return it->second;
}

void Serie::setValue(const Date& date, double value) { setValue(Date::julian(date), value); }

void Serie::setValue(unsigned int julian, double value) { mapOfJulianToValues.set(julian, value); }

Serie::Values& Serie::Values::operator=(const Values& other) {
  entries = other.entries;
  lastFound.store(0, std::memory_order_relaxed);
  return *this;
}

Serie::Values& Serie::Values::operator=(Values&& other) noexcept {
  entries = std::move(other.entries);
  lastFound.store(0, std::memory_order_relaxed);
  return *this;
}

std::size_t Serie::Values::positionOf(unsigned int julian) const {
  const std::size_t size = entries.size();
  std::size_t at = lastFound.load(std::memory_order_relaxed);
  if (at < size && entries[at].first == julian) return at;
  if (++at < size && entries[at].first == julian) {
    lastFound.store(at, std::memory_order_relaxed);
    return at;
  }
  auto it = std::lower_bound(entries.begin(), entries.end(), julian,
                             [](const Entry& entry, unsigned int day) { return entry.first < day; });
  if (it == entries.end() || it->first != julian) return size;
  at = static_cast<std::size_t>(it - entries.begin());
  lastFound.store(at, std::memory_order_relaxed);
  return at;
}

Serie::Values::const_iterator Serie::Values::find(unsigned int julian) const {
  return entries.begin() + static_cast<std::ptrdiff_t>(positionOf(julian));
}

void Serie::Values::set(unsigned int julian, double value) {
  if (entries.empty() || entries.back().first < julian) {
    entries.emplace_back(julian, value);
    return;
  }
  if (entries.back().first == julian) {
    entries.back().second = value;
    return;
  }
  const std::size_t at = positionOf(julian);
  if (at < entries.size()) {
    entries[at].second = value;
    return;
  }
  auto it = std::lower_bound(entries.begin(), entries.end(), julian,
                             [](const Entry& entry, unsigned int day) { return entry.first < day; });
  entries.insert(it, {julian, value});
}

void Serie::fill(double value) { fill(value, interval); }

void Serie::fill(double value, const Interval& span) {
  PeriodWalker::forEach(span, [&](const Date& date) { setValue(date, value); });
}

void Serie::clear() { mapOfJulianToValues.clear(); }

bool Serie::isEmpty() const {
  return std::all_of(mapOfJulianToValues.begin(), mapOfJulianToValues.end(),
                     [](const auto& entry) { return std::fabs(entry.second - kEmptyValue) <= 1e-6; });
}

std::shared_ptr<Serie> Serie::copy() const { return std::make_shared<Serie>(*this); }

void Serie::copyFrom(const std::shared_ptr<Serie>& other) { *this = *other; }
