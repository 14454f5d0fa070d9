#pragma once

#include "host/application/program/program.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/UIWindow.h"

namespace host::music {

struct MusicApplicationObject
    : objc::Bound<MusicApplicationObject, "MusicApplication", UIApplication> {};

/// The application object of the Music application.
class MusicApplication : public objc::Implementation<MusicApplication, MusicApplicationObject> {
 public:
  using Implementation::Implementation;

  void application_did_finish_launching(objc::Object application);

 private:
  objc::Ref<UIWindow> window_;
};

void export_music_classes();
void prepare_music(bool is_stepped);

inline constexpr application::Program kProgram{"com.apple.Music", "Music", "MusicApplication",
                                               &export_music_classes, &prepare_music};

}  // namespace host::music
