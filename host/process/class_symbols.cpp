#include "host/process/class_names.h"

// The contents of a symbol do not matter: it only says that the class exists on this phone, so that
// a library that needs another class is not loaded.
#define SONAVUE_CLASS_SYMBOL(name)                           \
  extern const char name __asm__("__objc_class_name_" #name) \
      __attribute__((visibility("default")));                \
  const char name = 0;

namespace host::process::class_symbols {

SONAVUE_QUARTZCORE_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_UIKIT_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_MEDIA_PLAYER_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_MEDIA_PLAYER_UI_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_MESSAGE_UI_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_TWITTER_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_PREFERENCES_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_GESTURE_SERVICE_CLASSES(SONAVUE_CLASS_SYMBOL)
SONAVUE_HOME_SCREEN_CLASSES(SONAVUE_CLASS_SYMBOL)

}  // namespace host::process::class_symbols
