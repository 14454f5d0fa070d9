#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSSwitchTableCell.h"

/// A switch row whose switch has the colour of these settings. One of the extension's own classes.
struct SRSwitchTableCell : objc::Own<SRSwitchTableCell, "SRSwitchTableCell", PSSwitchTableCell> {};

namespace sonavue {

void make_switch_cell();

}  // namespace sonavue
