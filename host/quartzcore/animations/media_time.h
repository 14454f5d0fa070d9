#pragma once

namespace host::quartzcore {

/// The clock of this process; 0 without a run loop.
double media_time();

}  // namespace host::quartzcore
