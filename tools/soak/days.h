// Days of work: planned steps that lead into deep states, as a person would go there.
#pragma once

#include "soak/run.h"

namespace soak {

// Puts the steps of one day, chosen by weights, into the plan.
void plan_day(Run& run);

}  // namespace soak
