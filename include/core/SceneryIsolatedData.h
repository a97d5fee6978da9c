#pragma once

#include <map>
#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "common/Serie.h"
#include "core/Element.h"
#include "core/Link.h"

class Scenario;

// What a run by isolated networks hands from one piece to the next: the flow of each union link
// (m³/s, the "Vazão afluente" of the link in the piece that produces it), and the pieces already
// run, in run order. Copies share the flow series, so that an operation holding a copy writes and
// reads the same flows as the scenario manager's entry.
class SceneryIsolatedData {
 public:
  // Forgets the pieces and the flows, and gives each link a new, empty series over interval.
  void initialize(const std::vector<std::shared_ptr<Link>>& links, const Interval& interval);

  void addSceneryStructure(const std::shared_ptr<Scenario>& piece) { pieces.push_back(piece); }
  const std::vector<std::shared_ptr<Scenario>>& getVectorOfSceneryStructure() const {
    return pieces;
  }

  void addPairInMapOfUnionLinkIDToSerie(unsigned int linkId, const std::shared_ptr<Serie>& serie);
  bool thereIsASerieToThisUnionLinkID(unsigned int linkId) const;
  // Throws std::invalid_argument "SceneryIsolatedData::getSerieOfUnionLink: invalid unionID" for
  // a link without a series.
  const std::shared_ptr<Serie>& getSerieOfUnionLinkID(unsigned int linkId) const;
  // The union link's flow at date, m³/s. Throws as getSerieOfUnionLinkID, also when no piece has
  // written that date yet.
  double getUnionFlow(unsigned int linkId, const Date& date) const;
  // The enabled union links among elements: those whose flows a piece hands on.
  static std::vector<std::shared_ptr<Link>> enabledUnionLinks(
      const std::vector<std::shared_ptr<Element>>& elements);
  // Records, at date, the "Vazão afluente" of each of links.
  void takeUnionFlows(const std::vector<std::shared_ptr<Link>>& links, const Date& date,
                      unsigned int windowIndex) const;

 private:
  std::vector<std::shared_ptr<Scenario>> pieces;
  std::map<unsigned int, std::shared_ptr<Serie>> unionFlows;
};
