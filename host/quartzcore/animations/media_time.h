#pragma once

namespace host::quartzcore {

/// The current time of this process's clock, in seconds; 0 without a run loop.
double media_time();

}  // namespace host::quartzcore
