#include "core/Reservoir.h"

#include <algorithm>

#include "common/NumericalUtils.h"
#include "common/regression/RegressionTechniqueFactory.h"
#include "core/Link.h"
#include "core/SeriesContainers.h"
#include "vocabulary/Vocabulary.h"

ReservoirInfo::ReservoirInfo()
    : regressionTech(RegressionTechniqueFactory::make(RegressionType::cubicSpline)) {}

void ReservoirInfo::calculateCav(CAV column) {
  workingCav.clear();
  workingCav.reserve(cav.size());
  for (std::size_t row = 1; row < cav.size(); ++row) {
    const double value = cav[row][column];
    const bool repeated = std::any_of(workingCav.begin(), workingCav.end(), [&](const auto& kept) {
      return NumericalUtils::compareDoubles(kept[column], value, 1e-6);
    });
    if (!repeated) workingCav.push_back(cav[row]);
  }
}

Reservoir::Reservoir(const Point2D& position,
                     const std::vector<InstitutionalID>& institutionalIDs)
    : Node(Vocabulary::of(ElementType::reservoir), std::make_shared<ReservoirSeriesInput>(),
           position),
      institutionalIDs(institutionalIDs) {}

void Reservoir::backupLinks() {
  upstreamBackupLinks = getUpstreamLinks();
  downstreamBackupLinks = getDownstreamLinks();
}

void Reservoir::invertLink(const std::shared_ptr<Link>& link) {
  const auto sameLink = [&link](const std::shared_ptr<Link>& l) { return l->getId() == link->getId(); };
  const auto& downstream = getDownstreamLinks();
  const auto& upstream = getUpstreamLinks();
  if (std::any_of(downstream.begin(), downstream.end(), sameLink)) {
    Node::removeDownstream(link);
    addUpstream(link);
  } else if (std::any_of(upstream.begin(), upstream.end(), sameLink)) {
    removeUpstream(link);
    Node::addDownstream(link);
  }
}

void Reservoir::restoreInversionLink() { setLinks(upstreamBackupLinks, downstreamBackupLinks); }

bool Reservoir::hasBidirectionalLink() const {
  const auto bidirectional = [](const std::shared_ptr<Link>& l) { return l->getIsBidirectional(); };
  return std::any_of(getUpstreamLinks().begin(), getUpstreamLinks().end(), bidirectional) ||
         std::any_of(getDownstreamLinks().begin(), getDownstreamLinks().end(), bidirectional);
}

std::shared_ptr<Element> Reservoir::copy() const {
  std::shared_ptr<Element> element = Node::copy();
  auto reservoir = std::static_pointer_cast<Reservoir>(element);
  reservoir->institutionalIDs = institutionalIDs;
  ReservoirInfo& info = reservoir->reservoirInfo;
  info.initVol = reservoirInfo.initVol;
  info.minVol = reservoirInfo.minVol;
  info.maxVol = reservoirInfo.maxVol;
  info.cav = reservoirInfo.cav;
  info.workingCav = reservoirInfo.workingCav;
  info.regressionTech = RegressionTechniqueFactory::make(reservoirInfo.regressionTech->getType());
  info.isolated = reservoirInfo.isolated;
  info.maxRelease = reservoirInfo.maxRelease;
  return element;
}
