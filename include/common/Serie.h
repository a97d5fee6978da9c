#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

// A dated series of values, stored sparsely by Julian day number. A date without an entry reads
// as -999.0, the mark of a missing value. The interval is what the series claims to cover;
// setting it neither adds nor removes values, and values outside it are kept.
class Serie {
 public:
  static constexpr double kEmptyValue = -999.0;

  // The stored values in ascending order of Julian day. Runs write each series date after date,
  // so a value usually goes at the end: a sorted vector takes it without an allocation per value.
  // Runs also read date after date, so a read first tries the entry of the previous read and the
  // one after it before it searches; the remembered position is atomic because concurrent readers
  // of one series may share it.
  class Values {
   public:
    using Entry = std::pair<unsigned int, double>;
    using const_iterator = std::vector<Entry>::const_iterator;

    Values() = default;
    Values(const Values& other) : entries(other.entries) {}
    Values(Values&& other) noexcept : entries(std::move(other.entries)) {}
    Values& operator=(const Values& other);
    Values& operator=(Values&& other) noexcept;

    const_iterator begin() const { return entries.begin(); }
    const_iterator end() const { return entries.end(); }
    std::size_t size() const { return entries.size(); }
    bool empty() const { return entries.empty(); }
    // The entry of julian, or end().
    const_iterator find(unsigned int julian) const;
    // Inserts or overwrites the value of julian.
    void set(unsigned int julian, double value);
    void clear() { entries.clear(); }
    // Makes room for count entries, so that appending them moves nothing.
    void reserve(std::size_t count) { entries.reserve(count); }
    bool operator==(const Values& other) const { return entries == other.entries; }
    bool operator!=(const Values& other) const { return entries != other.entries; }

   private:
    // The position of julian, or entries.size(); remembers it for the next search.
    std::size_t positionOf(unsigned int julian) const;

    std::vector<Entry> entries;
    mutable std::atomic<std::size_t> lastFound{0};
  };

  Serie(const Interval& interval, Enum<SerieType> type, const Enum<Unit>& unit);
  virtual ~Serie() = default;

  // The value at date, or -999.0 when the date has no entry.
  double getValue(const Date& date) const;
  // As above; julian receives the day number when an entry is found and is untouched otherwise.
  double getValue(const Date& date, int& julian) const;
  void setValue(const Date& date, double value);
  void setValue(unsigned int julian, double value);

  // Writes value on each period of the series' own interval.
  void fill(double value);
  // Writes value on each period of interval, stepping by its periodicity.
  void fill(double value, const Interval& interval);
  // Removes every value; interval, type and unit stay.
  void clear();
  // True without values, or when every value is -999.0 within 1e-6.
  bool isEmpty() const;
  std::size_t size() const { return mapOfJulianToValues.size(); }
  // Makes room for count values, so that writing them date after date moves none of them.
  void reserve(std::size_t count) { mapOfJulianToValues.reserve(count); }

  const Values& getMapOfJulianToValues() const {
    return mapOfJulianToValues;
  }
  const Interval& getInterval() const { return interval; }
  void setInterval(const Interval& newInterval) { interval = newInterval; }
  const std::string& getName() const { return type.getName(); }
  const Enum<Unit>& getUnit() const { return unit; }
  SerieType getType() const { return type.getType(); }
  const Enum<SerieType>& getEnumType() const { return type; }

  // A new series with the same interval, type, unit and values.
  std::shared_ptr<Serie> copy() const;
  // Takes interval, type, unit and values from other.
  void copyFrom(const std::shared_ptr<Serie>& other);

 private:
  Values mapOfJulianToValues;
  Interval interval;
  Enum<SerieType> type;
  Enum<Unit> unit;
};
