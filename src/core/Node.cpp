#include "core/Node.h"

#include <algorithm>
#include <stdexcept>

#include "core/Link.h"

namespace {

void removeById(std::vector<std::shared_ptr<Link>>& links, const std::shared_ptr<Link>& link) {
  const unsigned int id = link->getId();
  links.erase(std::remove_if(links.begin(), links.end(),
                             [id](const std::shared_ptr<Link>& l) { return l->getId() == id; }),
              links.end());
}

bool isNatural(const std::shared_ptr<Link>& link) {
  return link->getType() == ElementType::naturalLink;
}

}  // namespace

void Node::addUpstream(const std::shared_ptr<Link>& link) { upstreamLinks.push_back(link); }

void Node::addDownstream(const std::shared_ptr<Link>& link) { downstreamLinks.push_back(link); }

void Node::removeUpstream(const std::shared_ptr<Link>& link) { removeById(upstreamLinks, link); }

void Node::removeDownstream(const std::shared_ptr<Link>& link) {
  removeById(downstreamLinks, link);
}

void Node::setLinks(std::vector<std::shared_ptr<Link>> upstream,
                    std::vector<std::shared_ptr<Link>> downstream) {
  upstreamLinks = std::move(upstream);
  downstreamLinks = std::move(downstream);
}

std::vector<std::shared_ptr<Link>> Node::getEnabledDownstreamLinks() const {
  std::vector<std::shared_ptr<Link>> result;
  std::copy_if(downstreamLinks.begin(), downstreamLinks.end(), std::back_inserter(result),
               [](const std::shared_ptr<Link>& link) { return link->isEnabled(); });
  return result;
}

std::shared_ptr<Link> Node::getFirstNaturalLink() const {
  auto it = std::find_if(downstreamLinks.begin(), downstreamLinks.end(), isNatural);
  return it == downstreamLinks.end() ? nullptr : *it;
}

std::shared_ptr<Link> Node::getFirstEnabledNaturalLink() const {
  auto it = std::find_if(downstreamLinks.begin(), downstreamLinks.end(),
                         [](const std::shared_ptr<Link>& link) {
                           return isNatural(link) && link->isEnabled();
                         });
  return it == downstreamLinks.end() ? nullptr : *it;
}

std::size_t Node::getDownstreamLinkIndex(const std::shared_ptr<Link>& link) const {
  for (std::size_t i = 0; i < downstreamLinks.size(); ++i) {
    if (downstreamLinks[i]->getId() == link->getId()) return i;
  }
  throw std::invalid_argument("Node::getDownstreamLinkIndex: invalid link");
}

std::shared_ptr<Element> Node::copy() const {
  std::shared_ptr<Element> element = Element::copy();
  auto node = std::static_pointer_cast<Node>(element);
  node->position = position;
  return element;
}
