#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSTableCell.h"

/// A row for each author. A tap opens the author's card. Both are the extension's own classes.
struct developerCell : objc::Own<developerCell, "developerCell", PSTableCell> {};
struct designerCell : objc::Own<designerCell, "designerCell", PSTableCell> {};

namespace sonavue {

void make_author_cells();

}  // namespace sonavue
