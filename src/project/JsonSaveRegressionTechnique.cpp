#include "project/JsonSaveRegressionTechnique.h"

using B = JsonSaveBuilder;

JsonSaveRegressionTechnique::JsonSaveRegressionTechnique(
    std::shared_ptr<RegressionTechnique> technique)
    : technique(std::move(technique)) {}

std::string JsonSaveRegressionTechnique::toJson() const {
  B::Members members = {B::makeJsonKeyValueString("type", technique->getName())};
  const B::Members specific = toJsonSpecific();
  members.insert(members.end(), specific.begin(), specific.end());
  return B::makeObject(members);
}

JsonSaveBuilder::Members JsonSaveRegressionTechnique::toJsonSpecific() const { return {}; }
