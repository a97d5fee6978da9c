#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "core/Link.h"
#include "core/LinkAddon.h"

// Reads a link's add-on object into a new add-on of its type, which then replaces the link's.
// The add-ons "Nenhum" and "Propagação" have no keys of their own and are read by this class;
// add-ons with keys derive from it.
class JsonLoadLinkAddon {
 public:
  // A reader of an add-on of type for link.
  JsonLoadLinkAddon(LinkAddonType type, std::shared_ptr<Link> link);
  virtual ~JsonLoadLinkAddon() = default;

  // Reads object and gives the add-on to the link. Throws nlohmann::json::type_error for a value
  // of the wrong type.
  void load(const nlohmann::json& object) const;

 protected:
  // Reads the keys of the add-on's kind; none here.
  virtual void loadSpecific(const nlohmann::json& object, LinkAddon& addon) const;

 private:
  LinkAddonType type;
  std::shared_ptr<Link> link;
};
