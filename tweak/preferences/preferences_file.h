#pragma once

#include "objc/ref.h"
#include "platform/Foundation/NSDictionary.h"
#include "tweak/preferences/preference_key.h"

// The file that the home screen and the settings share. It is not cached: every access reads it,
// and every change writes all of it atomically.

namespace sonavue {

NSString preferences_path();

/// The contents of the file; nil if it cannot be read.
NSDictionary load_preferences();

/// Whether the value of a switch is true. NO for nil and for objects without a truth value, which
/// a file edited by hand may contain.
BOOL is_true(objc::Object value);

/// A change of the file: holds the loaded contents, changes them, and writes them back.
class PreferencesChange {
 public:
  explicit PreferencesChange(NSDictionary loaded);
  /// `value` must not be nil.
  void set(objc::Object value, PreferenceKey key);
  void set(BOOL value, PreferenceKey key);
  void write() const;

 private:
  objc::Ref<NSMutableDictionary> entries_;
};

}  // namespace sonavue
