#pragma once

#include <set>
#include <string>
#include <vector>

#include "vocabulary/EnumTypes.h"

// The objective functions an optimisation can read from a finished simulation.
enum class ObjectiveFunctionType : int {
  evaporationLoss = 0,
  numberOfFailures = 1,
  shortageVolume = 2,
  spillVolume = 3,
  pumpingCost = 4,
  hedgingCurve = 5,
};

// One objective function's entry in the vocabulary: its display name (also its name in the
// project file), the element types it reads, and a flag stored with it (false only for the spill
// volume).
class ObjectiveFunctionTypeEnum {
 public:
  ObjectiveFunctionType getType() const { return type; }
  const std::string& getName() const { return name; }
  const std::set<ElementType>& getElementTypes() const { return elementTypes; }
  bool getFlag() const { return flag; }

  // The entry of type.
  static const ObjectiveFunctionTypeEnum& of(ObjectiveFunctionType type);
  // The entry whose name is name. Throws std::invalid_argument
  // "getObjectiveFunctionByString(): Invalid objective function" for any other text.
  static const ObjectiveFunctionTypeEnum& byName(const std::string& name);
  // Every entry, in the order of the types.
  static const std::vector<ObjectiveFunctionTypeEnum>& all();

  bool operator==(const ObjectiveFunctionTypeEnum& other) const { return type == other.type; }

 private:
  ObjectiveFunctionTypeEnum(ObjectiveFunctionType type, std::string name,
                            std::set<ElementType> elementTypes, bool flag);

  ObjectiveFunctionType type;
  std::string name;
  std::set<ElementType> elementTypes;
  bool flag;
};
