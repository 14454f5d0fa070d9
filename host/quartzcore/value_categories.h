#pragma once

namespace host::quartzcore {

/// Teaches NSValue to hold points, sizes, rectangles and transforms.
void export_value_categories();

}  // namespace host::quartzcore
