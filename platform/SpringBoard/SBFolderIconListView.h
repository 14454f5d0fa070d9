#pragma once

#include "platform/SpringBoard/SBIconListView.h"

/// The icons inside a folder, whether it is open or not.
struct SBFolderIconListView
    : objc::Bound<SBFolderIconListView, "SBFolderIconListView", SBIconListView> {};
