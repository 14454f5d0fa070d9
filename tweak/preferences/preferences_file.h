#pragma once

#include "objc/ref.h"
#include "platform/Foundation/NSDictionary.h"
#include "tweak/preferences/preference_key.h"

// The file that the home screen and the settings share. No copy of it is kept: every look reads it
// and every change writes all of it in one step.

namespace sonavue {

NSString preferences_path();

/// All that is in the file; nil when it cannot be read.
NSDictionary load_preferences();

/// Is it true, as a switch is? Nil is not, and neither is what cannot be: the file may have been
/// written by hand.
BOOL is_true(objc::Object value);

/// A change of the file: what was loaded, to be changed and written back.
class PreferencesChange {
 public:
  explicit PreferencesChange(NSDictionary loaded);
  /// The value is not nil.
  void set(objc::Object value, PreferenceKey key);
  void set(BOOL value, PreferenceKey key);
  void write() const;

 private:
  objc::Ref<NSMutableDictionary> entries_;
};

}  // namespace sonavue
