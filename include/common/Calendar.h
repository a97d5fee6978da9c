#pragma once

#include <string>

#include "common/Date.h"

class Interval;

// Calendar arithmetic of the Gregorian calendar. Increments and decrements work on the years
// 1400..9999; outside them they throw std::invalid_argument with "Invalid date increment" or
// "Invalid date decrement".
class Calendar {
 public:
  static bool isLeapYear(unsigned int year);
  // 28..31, 0 for month 0; throws std::invalid_argument "Invalid date increment" above 12.
  static unsigned int daysInMonth(unsigned int year, unsigned int month);
  static unsigned int daysInYear(unsigned int year);
  static bool isValidYear(unsigned int year);
  static bool isValidMonth(unsigned int month);
  static bool isValidHour(unsigned int hour);
  static bool isValidDay(unsigned int year, unsigned int month, unsigned int day);

  static Date incDays(Date& date, unsigned int days);
  static Date decDays(const Date& date, unsigned int days);
  // Days from date to one month (one year) later; a date on the last day of its month goes to
  // the last day of the target month, any other keeps its day clipped to the month's length.
  static unsigned int incMonth(const Date& date);
  static unsigned int incYear(const Date& date);
  // Days of one step of the interval's periodicity from date; throws std::invalid_argument
  // "Invalid time Interval." for an unknown periodicity.
  static unsigned int incInterval(const Date& date, const Interval& interval);
  static Date decMonths(const Date& date, unsigned int months);
  static Date decYears(const Date& date, unsigned int years);
  // The date one step of the interval's periodicity earlier; std::out_of_range for an unknown
  // periodicity.
  static Date decDate(const Date& date, const Interval& interval);

  static Date getCurrentDate();
  static std::string getTimeStamp();
};
