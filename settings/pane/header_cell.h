#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSTableCell.h"

/// The product's logo and its name, which shimmers, above the first page. A class of the
/// extension's own.
struct HeaderCellForSonavue : objc::Own<HeaderCellForSonavue, "HeaderCellForSonavue", PSTableCell> {
};

namespace sonavue {

void make_header_cell();

}  // namespace sonavue
