#pragma once

#include "platform/UIKit/UIColor.h"
#include "tweak/preferences/preference_key.h"

namespace sonavue {

/// The colour that the setting names; any other name is black.
UIColor color(PreferenceKey key);

}  // namespace sonavue
