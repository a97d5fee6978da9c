#include "operation/LinkAddonResultsWriter.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/LinkAddonPumping.h"

void LinkAddonResultsWriter::write(const std::shared_ptr<Link>& link, const Date& date,
                                   unsigned int windowIndex) {
  using Writer = std::function<void(const std::shared_ptr<Link>&, const Date&, unsigned int)>;
  static const Writer nothing = [](const std::shared_ptr<Link>&, const Date&, unsigned int) {};
  static const std::map<LinkAddonType, Writer> writers = {
      {LinkAddonType::none, nothing},
      {LinkAddonType::propagation, nothing},
      {LinkAddonType::pumping, writePumping},
  };
  auto it = writers.find(link->getLinkAddon()->getType());
  if (it == writers.end()) {
    throw std::invalid_argument("LinkAddonResultsWriter::write invalid addonType");
  }
  it->second(link, date, windowIndex);
}

void LinkAddonResultsWriter::writePumping(const std::shared_ptr<Link>& link, const Date& date,
                                          unsigned int windowIndex) {
  const auto& pumping = static_cast<const LinkAddonPumping&>(*link->getLinkAddon());
  const double flow = link->getOutputSerie(SerieType::inflow, windowIndex)->getValue(date);
  link->getOutputSerie(SerieType::pumpingCost, windowIndex)
      ->setValue(date, pumping.getRegressionFlowCost(flow, date.getMonth()));
}
