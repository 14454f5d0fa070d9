#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSTableCell.h"

/// One row for an author, whose card a tap opens. Classes of the extension's own.
struct developerCell : objc::Own<developerCell, "developerCell", PSTableCell> {};
struct designerCell : objc::Own<designerCell, "designerCell", PSTableCell> {};

namespace sonavue {

void make_author_cells();

}  // namespace sonavue
