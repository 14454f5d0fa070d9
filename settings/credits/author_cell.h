#pragma once

namespace sonavue {

/// The classes `developerCell` and `designerCell`: one row for an author, whose card a tap opens.
void make_author_cells();

}  // namespace sonavue
