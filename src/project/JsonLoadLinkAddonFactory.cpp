#include "project/JsonLoadLinkAddonFactory.h"

#include <functional>

#include "project/JsonLoadLinkAddonPumping.h"
#include "project/JsonMakerTable.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonLoadLinkAddon>(const std::shared_ptr<Link>&)>;

template <typename Reader, LinkAddonType type>
std::shared_ptr<JsonLoadLinkAddon> makeReader(const std::shared_ptr<Link>& link) {
  return std::make_shared<Reader>(type, link);
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {Vocabulary::of(LinkAddonType::none).getName(),
           makeReader<JsonLoadLinkAddon, LinkAddonType::none>},
          {Vocabulary::of(LinkAddonType::propagation).getName(),
           makeReader<JsonLoadLinkAddon, LinkAddonType::propagation>},
          {Vocabulary::of(LinkAddonType::pumping).getName(),
           makeReader<JsonLoadLinkAddonPumping, LinkAddonType::pumping>},
      },
      "JsonLoadLinkAddonFactory::make(): invalid linkAddonType");
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadLinkAddon> JsonLoadLinkAddonFactory::make(
    const std::string& type, const std::shared_ptr<Link>& link) {
  return makers().at(type)(link);
}

std::vector<std::string> JsonLoadLinkAddonFactory::keys() { return makers().keys(); }
