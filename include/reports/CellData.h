#pragma once

#include <memory>
#include <string>

#include "core/ContentTypeEnum.h"
#include "reports/TypeOfData.h"

// One cell of a report table. A numeric cell that was never given a value holds the empty mark
// -999.0 (-999 in a whole-number cell), as every series does.
class CellData {
 public:
  virtual ~CellData() = default;

  // The type of data of the cell.
  virtual TypeOfData getTypeOfData() const = 0;
  // The content type of the cell: "Int", "Double" or "String".
  virtual std::shared_ptr<ContentTypeEnum> getContentType() const = 0;
  // The value as text; numbers with "." as the decimal point and as many digits as it takes to
  // read them back exactly.
  virtual std::string toString() const = 0;
  // Takes the value from text. Throws std::invalid_argument for text that is not a number in a
  // floating cell, or not a whole number in a whole-number cell.
  virtual void load(const std::string& text) = 0;
  // The value as a number; a whole-number cell gives it as a double. Throws
  // std::invalid_argument when a text cell does not hold a number.
  virtual double getNumber() const = 0;
  // Takes a number; a whole-number cell rounds it to the nearest integer, a text cell takes the
  // number's text.
  virtual void setNumber(double value) = 0;
  // True when the cell holds the empty mark -999.0.
  bool isEmpty() const;
};

// A whole-number cell ("Int"), such as a count of months.
class CellDataInt : public CellData {
 public:
  TypeOfData getTypeOfData() const override { return TypeOfData::intType; }
  std::shared_ptr<ContentTypeEnum> getContentType() const override;
  std::string toString() const override { return std::to_string(value); }
  void load(const std::string& text) override;
  double getNumber() const override { return static_cast<double>(value); }
  void setNumber(double number) override;

 private:
  long long value = -999;
};

// A floating cell ("Double"), such as a percentage or a volume.
class CellDataDouble : public CellData {
 public:
  TypeOfData getTypeOfData() const override { return TypeOfData::doubleType; }
  std::shared_ptr<ContentTypeEnum> getContentType() const override;
  std::string toString() const override;
  void load(const std::string& text) override;
  double getNumber() const override { return value; }
  void setNumber(double number) override { value = number; }

 private:
  double value = -999.0;
};

// A text cell ("String"), such as an element's name.
class CellDataString : public CellData {
 public:
  TypeOfData getTypeOfData() const override { return TypeOfData::stringType; }
  std::shared_ptr<ContentTypeEnum> getContentType() const override;
  std::string toString() const override { return value; }
  void load(const std::string& text) override { value = text; }
  double getNumber() const override;
  void setNumber(double number) override;

 private:
  std::string value;
};
