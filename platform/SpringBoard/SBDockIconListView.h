#pragma once

#include "platform/SpringBoard/SBIconListView.h"

/// The row of icons in the dock. It fills the dock.
struct SBDockIconListView : objc::Bound<SBDockIconListView, "SBDockIconListView", SBIconListView> {
};
