#include "common/Calendar.h"

#include <algorithm>
#include <boost/date_time/gregorian/gregorian.hpp>
#include <boost/date_time/posix_time/posix_time.hpp>
#include <functional>
#include <map>
#include <stdexcept>

#include "common/Interval.h"

namespace {

constexpr const char* kIncrementFailure = "Invalid date increment";
constexpr const char* kDecrementFailure = "Invalid date decrement";

// The years that boost's calendar represents.
constexpr unsigned int kFirstYear = (boost::gregorian::greg_year::min)();
constexpr unsigned int kLastYear = (boost::gregorian::greg_year::max)();
// boost counts days in 32 bits and wraps silently; no step longer than this can land in range.
constexpr long long kLongestStep = (kLastYear - kFirstYear + 1) * 366LL;

bool isInRange(unsigned int year) { return year >= kFirstYear && year <= kLastYear; }

Date shiftDays(const Date& date, long long days, const char* failure) {
  // A year beyond the range is refused here: boost's 16-bit year would wrap it into the range.
  if (!isInRange(date.getYear()) || days > kLongestStep || days < -kLongestStep) {
    throw std::invalid_argument(failure);
  }
  try {
    const boost::gregorian::date shifted =
        boost::gregorian::date(static_cast<unsigned short>(date.getYear()), date.getMonth(),
                               date.getDay()) +
        boost::gregorian::days(days);
    return Date(shifted.year(), shifted.month(), shifted.day());
  } catch (const std::out_of_range&) {
    throw std::invalid_argument(failure);
  }
}

// Done here rather than with boost's month durations, which work out the target year in 16 bits
// and so wrap a long step silently back into range. A date on the last day of its month lands on
// the last day of the target month; any other keeps its day as far as the target month allows.
Date shiftMonths(const Date& date, long long months, const char* failure) {
  const long long target = date.getYear() * 12LL + date.getMonth() - 1 + months;
  if (!isInRange(date.getYear()) || target < kFirstYear * 12LL ||
      target >= (kLastYear + 1) * 12LL) {
    throw std::invalid_argument(failure);
  }
  const auto year = static_cast<unsigned int>(target / 12);
  const auto month = static_cast<unsigned int>(target % 12 + 1);
  const unsigned int lastDay = Calendar::daysInMonth(year, month);
  const bool onLastDay = date.getDay() == date.daysInMonth();
  return Date(year, month, onLastDay ? lastDay : std::min(date.getDay(), lastDay));
}

unsigned int daysUntil(const Date& from, const Date& to) {
  return Date::julian(to) - Date::julian(from);
}

// One step of each periodicity, forwards as a number of days and backwards as a date.
struct Step {
  std::function<unsigned int(const Date&)> forward;
  std::function<Date(const Date&)> backward;
};

const std::map<Periodicity, Step>& steps() {
  static const std::map<Periodicity, Step> table = {
      {Periodicity::daily,
       {[](const Date&) { return 1u; }, [](const Date& d) { return Calendar::decDays(d, 1); }}},
      {Periodicity::monthly,
       {Calendar::incMonth, [](const Date& d) { return Calendar::decMonths(d, 1); }}},
      {Periodicity::yearly,
       {Calendar::incYear, [](const Date& d) { return Calendar::decYears(d, 1); }}},
  };
  return table;
}

}  // namespace

bool Calendar::isLeapYear(unsigned int year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

unsigned int Calendar::daysInMonth(unsigned int year, unsigned int month) {
  static constexpr unsigned int kDays[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month > 12) throw std::invalid_argument(kIncrementFailure);
  return kDays[month] + (month == 2 && isLeapYear(year) ? 1 : 0);
}

unsigned int Calendar::daysInYear(unsigned int year) { return isLeapYear(year) ? 366 : 365; }

bool Calendar::isValidYear(unsigned int year) { return year != 0; }

bool Calendar::isValidMonth(unsigned int month) { return month >= 1 && month <= 12; }

bool Calendar::isValidHour(unsigned int hour) { return hour < 24; }

bool Calendar::isValidDay(unsigned int year, unsigned int month, unsigned int day) {
  return day >= 1 && day <= daysInMonth(year, month);
}

Date Calendar::incDays(Date& date, unsigned int days) {
  return shiftDays(date, days, kIncrementFailure);
}

Date Calendar::decDays(const Date& date, unsigned int days) {
  return shiftDays(date, -static_cast<long long>(days), kDecrementFailure);
}

unsigned int Calendar::incMonth(const Date& date) {
  return daysUntil(date, shiftMonths(date, 1, kIncrementFailure));
}

unsigned int Calendar::incYear(const Date& date) {
  return daysUntil(date, shiftMonths(date, 12, kIncrementFailure));
}

unsigned int Calendar::incInterval(const Date& date, const Interval& interval) {
  const auto step = steps().find(interval.getPeriodicity().getType());
  if (step == steps().end()) throw std::invalid_argument("Invalid time Interval.");
  return step->second.forward(date);
}

Date Calendar::decMonths(const Date& date, unsigned int months) {
  return shiftMonths(date, -static_cast<long long>(months), kDecrementFailure);
}

Date Calendar::decYears(const Date& date, unsigned int years) {
  return shiftMonths(date, -12LL * years, kDecrementFailure);
}

Date Calendar::decDate(const Date& date, const Interval& interval) {
  return steps().at(interval.getPeriodicity().getType()).backward(date);
}

Date Calendar::getCurrentDate() {
  const boost::gregorian::date today = boost::gregorian::day_clock::local_day();
  return Date(today.year(), today.month(), today.day());
}

std::string Calendar::getTimeStamp() {
  return boost::posix_time::to_iso_extended_string(boost::posix_time::second_clock::local_time());
}
