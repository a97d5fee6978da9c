#pragma once

#include <string>

// A calendar date of the proleptic Gregorian calendar. The default date is 1 January 1400.
// Dates of series are keyed by their Julian day number (julian()).
class Date {
 public:
  Date();
  // Throws std::invalid_argument "Invalid year." (year 0), "Invalid month." (not 1..12) or
  // "Invalid day." (not within the month), checked in this order.
  Date(unsigned int year, unsigned int month, unsigned int day);

  unsigned int getYear() const { return year; }
  unsigned int getMonth() const { return month; }
  unsigned int getDay() const { return day; }
  bool isLeapYear() const;
  unsigned int daysInMonth() const;

  // Throws std::invalid_argument "Invalid year" for year 0.
  void setYear(unsigned int year);
  // Throws std::invalid_argument "Invalid month" outside 1..12.
  void setMonth(unsigned int month);
  // Sets day, month and year together; throws std::invalid_argument "Invalid day" when the day
  // does not exist in that month.
  void setDay(unsigned int day, unsigned int month, unsigned int year);

  bool operator==(const Date& other) const;
  bool operator!=(const Date& other) const;
  bool operator<(const Date& other) const;
  bool operator<=(const Date& other) const;
  bool operator>(const Date& other) const;
  bool operator>=(const Date& other) const;

  // Moves by whole days through Calendar::incDays / decDays (years 1400..9999).
  Date operator+(unsigned int days) const;
  Date& operator+=(const unsigned int& days);
  Date& operator++();
  Date& operator--();

  // Julian day number by the classical formula, with the Gregorian correction on every date.
  static unsigned int julian(const Date& date);
  // Inverse of julian(); hour is set to 0.
  static Date gregorian(unsigned int julian, unsigned char& hour);
  // julian(date) * 100 + hour; throws std::invalid_argument "Invalid hour" for hour >= 24.
  static unsigned int julianH(const Date& date, unsigned char hour);
  // Inverse of julianH(): the hour is taken from the last two decimal digits.
  static Date gregorianH(unsigned int value, unsigned char& hour);

  // Formats with a date facet format ("%d/%m/%Y", "%m/%Y", "%Y", "%Y-%m-%d");
  // throws std::invalid_argument "Invalid date format." on failure.
  std::string toString(std::string format) const;
  // Parses text in the given format; throws std::invalid_argument
  // "Invalid date/format matching." when they don't match or the text is a special value that is
  // not a date ("not-a-date-time", "-infinity", "+infinity", ...).
  static Date fromString(const std::string& text, const std::string& format);

 private:
  unsigned int year;
  unsigned char month;
  unsigned char day;
};
