#include "core/PriorityPassiveSettings.h"

void PriorityPassiveSettings::copyFrom(const std::shared_ptr<Settings>&) {}
