#include "platform/UIKit/UIScreen.h"
#include "tweak/Sonavue2.h"
#include "tweak/search/hits.h"

namespace sonavue {

#define SONAVUE_DEFINE(Type, name, ...) constinit Type name = __VA_ARGS__;
SONAVUE_GLOBALS(SONAVUE_DEFINE)
#undef SONAVUE_DEFINE

void fill_globals() {
  mc = SBMediaController::sharedInstance();
  rect = UIScreen::mainScreen().bounds();
  result = SVHits::alloc().init();
  musicPlayer = MPMusicPlayerController::iPodMusicPlayer();
}

}  // namespace sonavue

namespace {

struct ExportedGlobal {
  const char* name;
  const char* encoding;
  void* address;
};

}  // namespace

// Read by the console of a host that has one; a phone has nobody who looks.
extern "C" __attribute__((visibility("default"), used)) const ExportedGlobal exported_globals[] = {
#define SONAVUE_EXPORT(Type, name, initial) \
  {#name, objc::Encode<Type>::text.c_str(), &sonavue::name},
    SONAVUE_GLOBALS(SONAVUE_EXPORT)
#undef SONAVUE_EXPORT
        {nullptr, nullptr, nullptr}};
