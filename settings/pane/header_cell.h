#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSTableCell.h"

/// The header of the first page: the product's logo, and its name, which shimmers. One of the
/// extension's own classes.
struct HeaderCellForSonavue : objc::Own<HeaderCellForSonavue, "HeaderCellForSonavue", PSTableCell> {
};

namespace sonavue {

void make_header_cell();

}  // namespace sonavue
