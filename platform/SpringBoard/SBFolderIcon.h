#pragma once

#include "platform/SpringBoard/SBIcon.h"

struct SBFolderIcon : objc::Bound<SBFolderIcon, "SBFolderIcon", SBIcon> {};
