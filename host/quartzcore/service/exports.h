#pragma once

namespace host::quartzcore {

/// Registers the classes of QuartzCore and CoreGraphics in this process. Idempotent.
void export_quartzcore();

}  // namespace host::quartzcore
