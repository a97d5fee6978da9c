#include "project/JsonSaveLinkAddonFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveLinkAddonPumping.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonSaveLinkAddon>(const std::shared_ptr<LinkAddon>&)>;

template <typename Writer>
std::shared_ptr<JsonSaveLinkAddon> makeWriter(const std::shared_ptr<LinkAddon>& addon) {
  return std::make_shared<Writer>(addon);
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {Vocabulary::of(LinkAddonType::none).getName(), makeWriter<JsonSaveLinkAddon>},
          {Vocabulary::of(LinkAddonType::propagation).getName(), makeWriter<JsonSaveLinkAddon>},
          {Vocabulary::of(LinkAddonType::pumping).getName(), makeWriter<JsonSaveLinkAddonPumping>},
      },
      "JsonSaveLinkAddonFactory::make(): invalid linkAddonType");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveLinkAddon> JsonSaveLinkAddonFactory::make(
    const std::shared_ptr<LinkAddon>& addon) {
  return makers().at(addon->getEnumType().getName())(addon);
}

std::vector<std::string> JsonSaveLinkAddonFactory::keys() { return makers().keys(); }
