#pragma once

#include <memory>
#include <string>

#include "core/LinkAddon.h"
#include "project/JsonSaveBuilder.h"

// Writes a link's add-on object, {"linkAddonType":"<name>"<keys of the kind>}. The add-ons
// "Nenhum" and "Propagação" have no keys of their own and are written by this class; add-ons with
// keys derive from it.
class JsonSaveLinkAddon {
 public:
  explicit JsonSaveLinkAddon(std::shared_ptr<LinkAddon> addon);
  virtual ~JsonSaveLinkAddon() = default;

  // The add-on object.
  std::string toJson() const;

 protected:
  // The members of the add-on's kind, after its type; none here.
  virtual JsonSaveBuilder::Members toJsonSpecific() const;
  const std::shared_ptr<LinkAddon>& getAddon() const { return addon; }

 private:
  std::shared_ptr<LinkAddon> addon;
};
