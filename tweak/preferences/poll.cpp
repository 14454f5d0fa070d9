#include "tweak/preferences/poll.h"

#include "tweak/preferences/preferences_file.h"

namespace sonavue {

void changePreferences(SpringBoard self) {
  const NSDictionary loaded = load_preferences();
  if (is_true(loaded.objectForKey(preference::checked().text()))) return;
  PreferencesChange change(loaded);
  change.set(YES, preference::checked());
  change.write();
  objc::send<>(self, "changesPrefs"_sel);
}

}  // namespace sonavue
