#pragma once

#include "platform/Preferences/PSTableCell.h"
#include "settings/credits/author.h"

namespace sonavue {

inline constexpr CGFloat kAuthorRowHeight = 94;

/// Photo, name, role and an arrow.
void fill_author_row(PSTableCell cell, const Author& author);

}  // namespace sonavue
