#include "common/Date.h"

#include <boost/date_time/gregorian/gregorian.hpp>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <tuple>

#include "common/Calendar.h"

namespace {

// First Julian day number of the Gregorian calendar (15 October 1582).
constexpr unsigned int kGregorianReform = 2299161;

// boost keeps the year in 16 bits, so a larger year would silently wrap into its range; it is
// refused with boost's own exception instead.
boost::gregorian::date toBoost(const Date& date) {
  if (date.getYear() > (boost::gregorian::greg_year::max)()) throw boost::gregorian::bad_year();
  return boost::gregorian::date(static_cast<unsigned short>(date.getYear()), date.getMonth(),
                                date.getDay());
}

}  // namespace

Date::Date() : year(1400), month(1), day(1) {}

Date::Date(unsigned int year, unsigned int month, unsigned int day)
    : year(year), month(static_cast<unsigned char>(month)), day(static_cast<unsigned char>(day)) {
  if (!Calendar::isValidYear(year)) throw std::invalid_argument("Invalid year.");
  if (!Calendar::isValidMonth(month)) throw std::invalid_argument("Invalid month.");
  if (!Calendar::isValidDay(year, month, day)) throw std::invalid_argument("Invalid day.");
}

bool Date::isLeapYear() const { return Calendar::isLeapYear(year); }

unsigned int Date::daysInMonth() const { return Calendar::daysInMonth(year, month); }

void Date::setYear(unsigned int year) {
  if (!Calendar::isValidYear(year)) throw std::invalid_argument("Invalid year");
  this->year = year;
}

void Date::setMonth(unsigned int month) {
  if (!Calendar::isValidMonth(month)) throw std::invalid_argument("Invalid month");
  this->month = static_cast<unsigned char>(month);
}

void Date::setDay(unsigned int day, unsigned int month, unsigned int year) {
  if (!Calendar::isValidYear(year) || !Calendar::isValidMonth(month) ||
      !Calendar::isValidDay(year, month, day)) {
    throw std::invalid_argument("Invalid day");
  }
  *this = Date(year, month, day);
}

bool Date::operator==(const Date& other) const {
  return std::tie(year, month, day) == std::tie(other.year, other.month, other.day);
}

bool Date::operator!=(const Date& other) const { return !(*this == other); }

bool Date::operator<(const Date& other) const {
  return std::tie(year, month, day) < std::tie(other.year, other.month, other.day);
}

bool Date::operator<=(const Date& other) const { return !(other < *this); }

bool Date::operator>(const Date& other) const { return other < *this; }

bool Date::operator>=(const Date& other) const { return !(*this < other); }

Date Date::operator+(unsigned int days) const {
  Date date = *this;
  return Calendar::incDays(date, days);
}

Date& Date::operator+=(const unsigned int& days) {
  *this = Calendar::incDays(*this, days);
  return *this;
}

Date& Date::operator++() { return *this += 1; }

Date& Date::operator--() {
  *this = Calendar::decDays(*this, 1);
  return *this;
}

unsigned int Date::julian(const Date& date) {
  long long y = date.year;
  int m = date.month;
  if (m < 3) {
    y -= 1;
    m += 12;
  }
  const double value = static_cast<long long>(365.25 * (y + 4716)) +
                       static_cast<long long>(30.6001 * (m + 1)) + date.day + 0.5 +
                       (2 - y / 100 + y / 400) - 1524.5;
  return static_cast<unsigned int>(value);
}

Date Date::gregorian(unsigned int julian, unsigned char& hour) {
  long long value = julian;
  if (julian >= kGregorianReform) {
    const auto a = static_cast<long long>((julian - 1867216.25) / 36524.25);
    value += 1 + a - a / 4;
  }
  const long long b = value + 1524;
  const auto c = static_cast<long long>((b - 122.1) / 365.25);
  const long long d = b - static_cast<long long>(365.25 * c);
  const auto e = static_cast<long long>(d / 30.6001);
  const long long day = d - static_cast<long long>(30.6001 * e);
  const long long month = e < 14 ? e - 1 : e - 13;
  long long year = month < 3 ? c - 4715 : c - 4716;
  if (year < 1) year = 1 - year;
  hour = 0;
  return Date(static_cast<unsigned int>(year), static_cast<unsigned int>(month),
              static_cast<unsigned int>(day));
}

unsigned int Date::julianH(const Date& date, unsigned char hour) {
  if (!Calendar::isValidHour(hour)) throw std::invalid_argument("Invalid hour");
  return julian(date) * 100 + hour;
}

Date Date::gregorianH(unsigned int value, unsigned char& hour) {
  const Date date = gregorian(value / 100, hour);
  hour = static_cast<unsigned char>(value % 100);
  return date;
}

std::string Date::toString(std::string format) const {
  std::ostringstream stream;
  // The locale owns the facet; it lives only as long as this stream.
  stream.imbue(std::locale(stream.getloc(), new boost::gregorian::date_facet(format.c_str())));
  try {
    stream << toBoost(*this);
  } catch (const std::out_of_range&) {
    throw std::invalid_argument("Invalid date format.");
  }
  return stream.str();
}

Date Date::fromString(const std::string& text, const std::string& format) {
  std::istringstream stream(text);
  stream.imbue(std::locale(stream.getloc(), new boost::gregorian::date_input_facet(format)));
  boost::gregorian::date parsed;
  stream >> parsed;
  if (stream.fail() || parsed.is_special()) {
    throw std::invalid_argument("Invalid date/format matching.");
  }
  // The parser skips the literal characters of the format unchecked, stops quietly where the
  // text ends and reads "minimum-date-time" as a date: only a date that prints back as the very
  // same text matches it.
  const Date date(parsed.year(), parsed.month(), parsed.day());
  if (date.toString(format) != text) throw std::invalid_argument("Invalid date/format matching.");
  return date;
}
