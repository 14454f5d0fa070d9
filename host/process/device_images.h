#pragma once

#include "host/runtime/device_images.h"
#include "platform/Activator/Activator.h"
#include "platform/MediaPlayerUI/MediaPlayerUI.h"
#include "platform/MessageUI/MessageUI.h"
#include "platform/Twitter/Twitter.h"

namespace host::process {

/// The paths of the device's frameworks and libraries.
inline constexpr std::string_view kFoundation =
    "/System/Library/Frameworks/Foundation.framework/Foundation";
inline constexpr std::string_view kQuartzCore =
    "/System/Library/Frameworks/QuartzCore.framework/QuartzCore";
inline constexpr std::string_view kUIKit = "/System/Library/Frameworks/UIKit.framework/UIKit";
inline constexpr std::string_view kMediaPlayer =
    "/System/Library/Frameworks/MediaPlayer.framework/MediaPlayer";
inline constexpr std::string_view kMediaPlayerUI = kMediaPlayerUIImage.text;
inline constexpr std::string_view kMessageUI = kMessageUIImage.text;
inline constexpr std::string_view kTwitter = kTwitterImage.text;
inline constexpr std::string_view kPreferences =
    "/System/Library/PrivateFrameworks/Preferences.framework/Preferences";
inline constexpr std::string_view kGestureService = kActivatorImage.text;

/// All images of the device. Each is loaded into the process only when it is requested.
std::span<const DeviceImage> device_images();

/// Does what happens before a program's first line: tells the dynamic linker which images the
/// device has, and loads those that the program is linked with.
void start_program(std::span<const std::string_view> images);

/// The same for the home screen, including the classes of its own program.
void start_home_screen();

}  // namespace host::process
