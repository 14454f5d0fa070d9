#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSSwitchTableCell.h"

/// The row of a switch in the settings' colour. A class of the extension's own.
struct SRSwitchTableCell : objc::Own<SRSwitchTableCell, "SRSwitchTableCell", PSSwitchTableCell> {};

namespace sonavue {

void make_switch_cell();

}  // namespace sonavue
