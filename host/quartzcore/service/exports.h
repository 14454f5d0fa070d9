#pragma once

namespace host::quartzcore {

/// Makes the classes of QuartzCore and CoreGraphics in this process; a second call does nothing.
void export_quartzcore();

}  // namespace host::quartzcore
