#pragma once

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// The makers of a vocabulary whose values are objects of a class of their own each, keyed by the
// plain type, with the lookups by name and the list of keys that its factory gives.
template <typename Type, typename Kind>
class KindMakers {
 public:
  using Maker = std::function<std::shared_ptr<Kind>()>;

  // The rows, and the text of the std::invalid_argument for a type without one.
  KindMakers(std::map<Type, Maker> rows, std::string missText)
      : makers(std::move(rows)), missText(std::move(missText)) {
    for (const auto& [type, maker] : makers) names.emplace(maker()->getName(), type);
  }

  template <typename Of>
  static std::shared_ptr<Kind> makeKind() {
    return std::make_shared<Of>();
  }

  std::shared_ptr<Kind> make(Type type) const {
    const auto found = makers.find(type);
    if (found == makers.end()) throw std::invalid_argument(missText);
    return found->second();
  }
  // The value of that display name; none when no value has it.
  std::shared_ptr<Kind> findByName(const std::string& name) const {
    const auto found = names.find(name);
    return found == names.end() ? nullptr : make(found->second);
  }
  std::vector<Type> keys() const {
    std::vector<Type> result;
    for (const auto& entry : makers) result.push_back(entry.first);
    return result;
  }

 private:
  std::map<Type, Maker> makers;
  std::map<std::string, Type> names;
  std::string missText;
};
