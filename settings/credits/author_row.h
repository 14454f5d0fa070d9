#pragma once

#include "platform/Preferences/PSTableCell.h"
#include "settings/credits/author.h"

namespace sonavue {

inline constexpr CGFloat kAuthorRowHeight = 94;

/// Adds the photo, name and role of the author and an arrow.
void fill_author_row(PSTableCell cell, const Author& author);

}  // namespace sonavue
