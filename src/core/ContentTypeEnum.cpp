#include "core/ContentTypeEnum.h"

#include <functional>
#include <map>
#include <stdexcept>

std::shared_ptr<ContentTypeEnum> ContentTypeEnumFactoryByEnumType::make(ContentType type) {
  static const std::map<ContentType, std::function<std::shared_ptr<ContentTypeEnum>()>>
      mapOfCallbacks = {
          {ContentType::intType, makeIntContentTypeEnum},
          {ContentType::doubleType, makeDoubleContentTypeEnum},
          {ContentType::stringType, makeStringContentTypeEnum},
      };
  auto it = mapOfCallbacks.find(type);
  if (it == mapOfCallbacks.end()) {
    throw std::invalid_argument("ContentTypeEnumFactoryByEnumType::make(): invalid typeOfData");
  }
  return it->second();
}

std::shared_ptr<ContentTypeEnum> ContentTypeEnumFactoryByEnumType::makeIntContentTypeEnum() {
  return std::make_shared<IntContentTypeEnum>();
}

std::shared_ptr<ContentTypeEnum> ContentTypeEnumFactoryByEnumType::makeDoubleContentTypeEnum() {
  return std::make_shared<DoubleContentTypeEnum>();
}

std::shared_ptr<ContentTypeEnum> ContentTypeEnumFactoryByEnumType::makeStringContentTypeEnum() {
  return std::make_shared<StringContentTypeEnum>();
}
