#pragma once

#include <memory>

#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

// The type of data in a column of a report table: "Int", "Double" or "String".
class ContentTypeEnum : public Enum<ContentType> {
 public:
  virtual ~ContentTypeEnum() = default;

 protected:
  ContentTypeEnum(ContentType type, std::string name) : Enum(type, std::move(name)) {}
};

class IntContentTypeEnum : public ContentTypeEnum {
 public:
  IntContentTypeEnum() : ContentTypeEnum(ContentType::intType, "Int") {}
};

class DoubleContentTypeEnum : public ContentTypeEnum {
 public:
  DoubleContentTypeEnum() : ContentTypeEnum(ContentType::doubleType, "Double") {}
};

class StringContentTypeEnum : public ContentTypeEnum {
 public:
  StringContentTypeEnum() : ContentTypeEnum(ContentType::stringType, "String") {}
};

// Throws std::invalid_argument "ContentTypeEnumFactoryByEnumType::make(): invalid typeOfData".
class ContentTypeEnumFactoryByEnumType {
 public:
  static std::shared_ptr<ContentTypeEnum> make(ContentType type);
  static std::shared_ptr<ContentTypeEnum> makeIntContentTypeEnum();
  static std::shared_ptr<ContentTypeEnum> makeDoubleContentTypeEnum();
  static std::shared_ptr<ContentTypeEnum> makeStringContentTypeEnum();
};
