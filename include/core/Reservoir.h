#pragma once

#include <memory>
#include <vector>

#include "common/InstitutionalID.h"
#include "core/Node.h"
#include "core/ReservoirInfo.h"

// A node that stores water from one period to the next.
class Reservoir : public Node {
 public:
  Reservoir(const Point2D& position, const std::vector<InstitutionalID>& institutionalIDs);

  const std::vector<InstitutionalID>& getInstitutionalIDs() const { return institutionalIDs; }
  void setInstitutionalIDs(const std::vector<InstitutionalID>& ids) { institutionalIDs = ids; }
  const ReservoirInfo& getReservoirInfo() const { return reservoirInfo; }
  ReservoirInfo& getReservoirInfo() { return reservoirInfo; }
  void setReservoirInfo(const ReservoirInfo& info) { reservoirInfo = info; }

  const std::vector<std::shared_ptr<Link>>& getUpstreamBackupLinks() const {
    return upstreamBackupLinks;
  }
  const std::vector<std::shared_ptr<Link>>& getDownstreamBackupLinks() const {
    return downstreamBackupLinks;
  }
  // Keeps a copy of both link lists, from which inversions of bidirectional links are undone.
  void backupLinks();
  // Moves link from the outgoing to the end of the incoming list, or the other way; a link in
  // neither list is left alone.
  void invertLink(const std::shared_ptr<Link>& link);
  // Sets both lists back from the copy kept by backupLinks(), order included.
  void restoreInversionLink();
  bool hasBidirectionalLink() const;

  // Node::copy, the institutional ids, the volumes, both tables, a new interpolator of the same
  // kind, the isolation flag and the maximum release.
  std::shared_ptr<Element> copy() const override;

 private:
  std::vector<InstitutionalID> institutionalIDs;
  ReservoirInfo reservoirInfo;
  std::vector<std::shared_ptr<Link>> upstreamBackupLinks;
  std::vector<std::shared_ptr<Link>> downstreamBackupLinks;
};
