#pragma once

#include "platform/Foundation/NSString.h"

namespace sonavue {

/// A key of the preferences file. The keys used in code are the functions below; a row of the
/// settings makes its key from its label's text.
class PreferenceKey {
 public:
  explicit PreferenceKey(NSString text) : text_(text) {}
  NSString text() const { return text_; }

 private:
  NSString text_;
};

namespace preference {

#define SONAVUE_PREFERENCE_KEY(name)  \
  inline PreferenceKey name() {       \
    return PreferenceKey(#name##_ns); \
  }
// Switches.
SONAVUE_PREFERENCE_KEY(enable)
SONAVUE_PREFERENCE_KEY(apex)
SONAVUE_PREFERENCE_KEY(cover)
SONAVUE_PREFERENCE_KEY(square)
SONAVUE_PREFERENCE_KEY(legibility)
SONAVUE_PREFERENCE_KEY(cloud)
// Names: of the blur, of what the ring shows, and of colours.
SONAVUE_PREFERENCE_KEY(blur)
SONAVUE_PREFERENCE_KEY(play)
SONAVUE_PREFERENCE_KEY(tint)
SONAVUE_PREFERENCE_KEY(font_tint)
// Internal: whether the home screen has applied the file, and whether the wizard has been shown.
SONAVUE_PREFERENCE_KEY(checked)
SONAVUE_PREFERENCE_KEY(firstBoot)
#undef SONAVUE_PREFERENCE_KEY

}  // namespace preference
}  // namespace sonavue
