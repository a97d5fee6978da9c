#pragma once

#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"
#include "scenario/ConfigureRuleElementFromPriorityAddon.h"

// Copies the settings of a learned rule into the conversion settings of its kind, so that the
// next conversion trains its models as that rule's.
class DoConfigureRuleElementAddonFromRegressionAlgorithm {
 public:
  // Throws std::invalid_argument "DoConfigureRuleElementAddonFromRegressionAlgorithm::configure():
  // invalid type" when the addon is not of the rule's kind.
  static void configure(const MachineLearningRegressionColVolumesReleaseRule& rule,
                        ConfigureRuleElementFromPriorityAddon& addon);

  static void configureColVolumes(const MachineLearningRegressionColVolumesReleaseRule& rule,
                                  ConfigureRuleElementFromPriorityAddon& addon);
  static void configureKNNColVolumesAddon(
      const MachineLearningRegressionColVolumesReleaseRule& rule,
      ConfigureRuleElementFromPriorityAddon& addon);
  static void configureRegressionTreeColVolumesAddon(
      const MachineLearningRegressionColVolumesReleaseRule& rule,
      ConfigureRuleElementFromPriorityAddon& addon);
  static void configureRegressionRandomForestColVolumesAddon(
      const MachineLearningRegressionColVolumesReleaseRule& rule,
      ConfigureRuleElementFromPriorityAddon& addon);
};
