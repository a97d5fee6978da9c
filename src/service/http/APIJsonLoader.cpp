#include "service/http/APIJsonLoader.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>

#include "common/PeriodWalker.h"
#include "common/Serie.h"
#include "common/StringUtils.h"
#include "core/Element.h"
#include "core/Reservoir.h"
#include "project/database/DatabaseUpdate.h"

namespace {

using json = nlohmann::json;

const char* const kSerieMethod = "APIJsonLoader::loadJsonExternalSerie(): ";
const char* const kCavMethod = "APIJsonLoader::loadJsonExternalCAV(): ";
const char* const kDateFormat = "%d-%m-%Y";
constexpr double kMissing = -999.0;

[[noreturn]] void refuse(const char* method, const std::string& reason) {
  throw std::runtime_error(method + reason);
}

// The array under "list" of the answer.
json listOf(const std::string& text, const char* method) {
  json answer = json::parse(text, nullptr, false);
  if (answer.is_discarded()) refuse(method, "the answer is not JSON");
  if (!answer.is_object() || !answer.contains("list") || !answer["list"].is_array()) {
    refuse(method, "the answer has no list");
  }
  return std::move(answer["list"]);
}

// The member key of item number index (from 1) of the list.
const json& memberOf(const json& item, const std::string& key, std::size_t index,
                     const char* method) {
  if (!item.is_object() || !item.contains(key)) {
    refuse(method, "item " + std::to_string(index) + " of the list has no \"" + key + "\"");
  }
  return item[key];
}

// A finite number, or one written in a string; null is the missing mark when allowed.
double numberOf(const json& value, const std::string& key, std::size_t index, bool nullAllowed,
                const char* method) {
  const std::string where = "\"" + key + "\" of item " + std::to_string(index) + " is not a number";
  double number = kMissing;
  if (value.is_number()) {
    number = value.get<double>();
  } else if (value.is_string()) {
    try {
      number = StringUtils::stdStringToDouble(value.get<std::string>());
    } catch (const std::invalid_argument&) {
      refuse(method, where);
    }
  } else if (!(value.is_null() && nullAllowed)) {
    refuse(method, where);
  }
  if (!std::isfinite(number)) refuse(method, where);
  return number;
}

Date dateOf(const json& value, std::size_t index, const std::set<unsigned int>& periods) {
  const std::string text = value.is_string() ? value.get<std::string>() : value.dump();
  Date date;
  try {
    if (!value.is_string()) throw std::invalid_argument(text);
    date = Date::fromString(text, kDateFormat);
  } catch (const std::invalid_argument&) {
    refuse(kSerieMethod,
           "\"data\" of item " + std::to_string(index) + " is not a date " + "dd-mm-yyyy: " + text);
  }
  if (periods.count(Date::julian(date)) == 0) {
    refuse(kSerieMethod, "the date " + text + " is not a period of the series");
  }
  return date;
}

std::set<unsigned int> periodsOf(const Interval& interval) {
  std::set<unsigned int> periods;
  PeriodWalker::forEach(interval,
                        [&periods](const Date& date) { periods.insert(Date::julian(date)); });
  return periods;
}

}  // namespace

std::vector<std::pair<Date, double>> APIJsonLoader::loadJsonExternalSerie(SQLite::Database& storage,
                                                                          const std::string& text,
                                                                          Element& element,
                                                                          SerieType type) {
  const auto& serie = element.getInputSerie(type);
  if (!serie) refuse(kSerieMethod, "element \"" + element.getName() + "\" has no input series");
  const json list = listOf(text, kSerieMethod);
  const auto periods = periodsOf(serie->getInterval());
  std::vector<std::pair<Date, double>> pairs;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const std::size_t index = i + 1;
    const Date date = dateOf(memberOf(list[i], "data", index, kSerieMethod), index, periods);
    const double value = numberOf(memberOf(list[i], "valor", index, kSerieMethod), "valor", index,
                                  true, kSerieMethod);
    pairs.emplace_back(date, value);
  }
  const auto updated = serie->copy();
  for (const auto& [date, value] : pairs) updated->setValue(date, value);
  if (!DatabaseUpdate::updateInputSerie(storage, element.getDatabaseId(), *updated)) {
    refuse(kSerieMethod, "the database has no series type \"" + serie->getName() + "\" in " +
                             serie->getUnit().getName());
  }
  serie->copyFrom(updated);
  return pairs;
}

std::size_t APIJsonLoader::loadJsonExternalCAV(SQLite::Database& storage, const std::string& text,
                                               Reservoir& reservoir) {
  const json list = listOf(text, kCavMethod);
  if (list.empty()) refuse(kCavMethod, "the list has no row");
  std::vector<std::vector<double>> rows;
  for (std::size_t i = 0; i < list.size(); ++i) {
    std::vector<double> row;
    for (const char* key : {"cota", "area", "volume"}) {
      row.push_back(
          numberOf(memberOf(list[i], key, i + 1, kCavMethod), key, i + 1, false, kCavMethod));
    }
    rows.push_back(std::move(row));
  }
  auto& cav = reservoir.getReservoirInfo().cav;
  auto former = std::move(cav);
  cav = std::move(rows);
  try {
    DatabaseUpdate::updateCAV(storage, reservoir);
  } catch (...) {
    cav = std::move(former);
    throw;
  }
  return cav.size();
}
