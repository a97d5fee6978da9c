#include "reports/CellData.h"

#include <cmath>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/StringUtils.h"
#include "reports/ReportFormat.h"

bool CellData::isEmpty() const {
  return getTypeOfData() != TypeOfData::stringType && NumericalUtils::isEmpty(getNumber());
}

std::shared_ptr<ContentTypeEnum> CellDataInt::getContentType() const {
  return ContentTypeEnumFactoryByEnumType::make(ContentType::intType);
}

void CellDataInt::load(const std::string& text) {
  const double number = StringUtils::stdStringToDouble(text);
  // Beyond 9e18 a long long no longer holds the value.
  if (number != std::trunc(number) || std::fabs(number) > 9.0e18) {
    throw std::invalid_argument("CellDataInt::load(): invalid whole number '" + text + "'");
  }
  value = static_cast<long long>(number);
}

void CellDataInt::setNumber(double number) { value = std::llround(number); }

std::shared_ptr<ContentTypeEnum> CellDataDouble::getContentType() const {
  return ContentTypeEnumFactoryByEnumType::make(ContentType::doubleType);
}

std::string CellDataDouble::toString() const { return ReportFormat::number(value); }

void CellDataDouble::load(const std::string& text) { value = StringUtils::stdStringToDouble(text); }

std::shared_ptr<ContentTypeEnum> CellDataString::getContentType() const {
  return ContentTypeEnumFactoryByEnumType::make(ContentType::stringType);
}

double CellDataString::getNumber() const { return StringUtils::stdStringToDouble(value); }

void CellDataString::setNumber(double number) { value = ReportFormat::number(number); }
