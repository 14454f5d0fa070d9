#pragma once

#include "platform/SpringBoard/SBIconListView.h"

/// The row of icons in the dock; it fills the dock.
struct SBDockIconListView : objc::Bound<SBDockIconListView, "SBDockIconListView", SBIconListView> {
};
