#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vocabulary/EnumTypes.h"

// One field of an element as an editor shows it and as scenarios copy it between each other.
struct PropertiesStruct {
  std::string key;    // the field, as named in project files
  std::string label;  // what a user reads
  ContentType contentType;
  std::string unit;  // empty for fields without a unit
};

// The list of fields of one element kind.
class Properties {
 public:
  virtual ~Properties() = default;
  const std::vector<PropertiesStruct>& getProperties() const { return properties; }

 protected:
  explicit Properties(std::vector<PropertiesStruct> properties)
      : properties(std::move(properties)) {}

 private:
  std::vector<PropertiesStruct> properties;
};

class ReservoirProperties : public Properties {
 public:
  ReservoirProperties();
};

class DemandProperties : public Properties {
 public:
  DemandProperties();
};

class LinkProperties : public Properties {
 public:
  LinkProperties();
};

class JunctionProperties : public Properties {
 public:
  JunctionProperties();
};

// Throws std::invalid_argument "PropertiesFactory::make(): invalid elementType" for basins, the
// family names and values outside the vocabulary.
class PropertiesFactory {
 public:
  static std::shared_ptr<Properties> make(const ElementType& type);
};
