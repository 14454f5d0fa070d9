#pragma once

namespace sonavue {

/// The class `HeaderCellForSonavue`: the product's logo and its name, which shimmers, above the
/// first page.
void make_header_cell();

}  // namespace sonavue
