#include "operation/LinkResultsWriter.h"

#include "common/NumericalUtils.h"
#include "core/Link.h"
#include "operation/LinkAddonResultsWriter.h"

void LinkResultsWriter::write(const Date& date, unsigned int windowIndex,
                              const std::shared_ptr<Element>& element, const Interval&, bool) {
  const auto link = std::static_pointer_cast<Link>(element);
  const double inflow = link->getOutputSerie(SerieType::inflow, windowIndex)->getValue(date);
  const double lossPercentage = link->getInputSerie(SerieType::transitLossPercentage)->getValue(date);
  const double loss = inflow * lossPercentage / 100.0;
  double outflow = NumericalUtils::subtractDoubles(inflow, loss, 1e-6);
  if (outflow < 0.0) outflow = 0.0;
  link->getOutputSerie(SerieType::transitLoss, windowIndex)->setValue(date, loss);
  link->getOutputSerie(SerieType::outflow, windowIndex)->setValue(date, outflow);
  LinkAddonResultsWriter::write(link, date, windowIndex);
  if (link->getIsBidirectional()) {
    link->getOutputSerie(SerieType::linkSense, windowIndex)
        ->setValue(date, static_cast<double>(link->getCurrentSense()));
  }
}
