#include "host/process/device_images.h"

#include "host/activator/page/exports.h"
#include "host/foundation/exports.h"
#include "host/media_player/exports.h"
#include "host/preferences/exports.h"
#include "host/process/class_names.h"
#include "host/quartzcore/service/exports.h"
#include "host/social/composers/exports.h"
#include "host/springboard/system/exports.h"
#include "host/uikit/alert/exports.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/keyboard/exports.h"
#include "host/uikit/navigation/exports.h"
#include "host/uikit/pages/exports.h"
#include "host/uikit/picker/exports.h"
#include "host/uikit/scroll/exports.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/text_view/text_view.h"

namespace host::process {
namespace {

constexpr std::string_view kBelowQuartzCore[] = {kFoundation};
constexpr std::string_view kBelowUIKit[] = {kQuartzCore};
constexpr std::string_view kAboveUIKit[] = {kUIKit};
constexpr std::string_view kBelowMediaPlayerUI[] = {kMediaPlayer};
constexpr std::string_view kHomeScreenImages[] = {kUIKit, kQuartzCore, kMediaPlayer,
                                                  kMediaPlayerUI};

void export_uikit() {
  social::open_addresses();
  uikit::export_drawing();
  uikit::export_application();
  uikit::export_text();
  uikit::export_keyboard();
  uikit::export_scroll();
  uikit::export_text_view();
  uikit::export_alert();
  uikit::export_navigation();
  uikit::export_pages();
  uikit::export_picker();
}

#define SONAVUE_NAME(name) #name,
constexpr std::string_view kQuartzCoreClasses[] = {SONAVUE_QUARTZCORE_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kUIKitClasses[] = {SONAVUE_UIKIT_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kMediaPlayerClasses[] = {SONAVUE_MEDIA_PLAYER_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kMediaPlayerUIClasses[] = {
    SONAVUE_MEDIA_PLAYER_UI_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kMessageUIClasses[] = {SONAVUE_MESSAGE_UI_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kTwitterClasses[] = {SONAVUE_TWITTER_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kPreferencesClasses[] = {SONAVUE_PREFERENCES_CLASSES(SONAVUE_NAME)};
constexpr std::string_view kGestureServiceClasses[] = {
    SONAVUE_GESTURE_SERVICE_CLASSES(SONAVUE_NAME)};
#undef SONAVUE_NAME

// The last ones consist only of C functions, which are in every program. They are listed because
// libraries request them.
constexpr DeviceImage kImages[] = {
    {kFoundation, {}, &foundation::export_foundation},
    {kQuartzCore, kBelowQuartzCore, &quartzcore::export_quartzcore, kQuartzCoreClasses},
    {kUIKit, kBelowUIKit, &export_uikit, kUIKitClasses},
    {kMediaPlayer, kAboveUIKit, &media_player::export_media_player, kMediaPlayerClasses},
    {kMediaPlayerUI, kBelowMediaPlayerUI, &media_player::export_now_playing_controller,
     kMediaPlayerUIClasses},
    {kMessageUI, kAboveUIKit, &social::export_message_ui, kMessageUIClasses},
    {kTwitter, kAboveUIKit, &social::export_twitter, kTwitterClasses},
    {kPreferences, kAboveUIKit, &preferences::export_preferences, kPreferencesClasses},
    {kGestureService, kAboveUIKit, &activator::export_activator, kGestureServiceClasses},
    {"/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation", {}, nullptr},
    {"/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics", {}, nullptr},
    {"/Library/Frameworks/CydiaSubstrate.framework/CydiaSubstrate", {}, nullptr},
    {"/usr/lib/libSystem.B.dylib", {}, nullptr},
    {"/usr/lib/libobjc.A.dylib", {}, nullptr},
};

}  // namespace

std::span<const DeviceImage> device_images() {
  return kImages;
}

void start_program(std::span<const std::string_view> images) {
  set_device_images(kImages);
  for (const std::string_view image : images)
    load_device_image(image);
}

void start_home_screen() {
  start_program(kHomeScreenImages);
  media_player::export_media_controller();
  springboard::export_springboard();
}

}  // namespace host::process
