#pragma once

#include "objc/fixed_string.h"

/// The file that has the classes of this folder. No process is sure to have loaded it.
inline constexpr objc::FixedString kMediaPlayerUIImage =
    "/System/Library/PrivateFrameworks/MediaPlayerUI.framework/MediaPlayerUI";
