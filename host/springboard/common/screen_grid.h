#pragma once

#include "host/springboard/model/grid_metrics.h"

namespace host::springboard {

/// The grid of this device's screen.
GridMetrics screen_grid();
bool is_tablet_screen();

}  // namespace host::springboard
