#pragma once

#include "platform/UIKit/UIColor.h"
#include "tweak/preferences/preference_key.h"

namespace sonavue {

/// The colour that the setting `key` names; black for an unknown name.
UIColor color(PreferenceKey key);

}  // namespace sonavue
