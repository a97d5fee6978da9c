#include "optimization/kernel/BestSolutionSelection.h"

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/SolutionSet.h"

BestSolutionSelection::BestSolutionSelection(const std::map<std::string, void*>& parameters)
    : Selection(parameters) {}

void* BestSolutionSelection::execute(void* object) {
  SolutionSet* set = static_cast<SolutionSet*>(object);
  if (set->size() == 0) return nullptr;
  Comparator* comparator = static_cast<Comparator*>(getParameter("comparator"));
  int best = 0;
  for (int i = 1; i < set->size(); ++i) {
    if (comparator->compare(set->get(i), set->get(best)) < 0) best = i;
  }
  return new int(best);
}
