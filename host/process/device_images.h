#pragma once

#include "host/runtime/device_images.h"
#include "platform/Activator/Activator.h"
#include "platform/MediaPlayerUI/MediaPlayerUI.h"
#include "platform/MessageUI/MessageUI.h"
#include "platform/Twitter/Twitter.h"

namespace host::process {

/// Frameworks and libraries of the device, by the paths of their files.
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

/// All that the device has. None is in the process until somebody asks for it.
std::span<const DeviceImage> device_images();

/// What happens before a program's first line: the dynamic linker learns what the device has, and
/// brings in what the program is linked with.
void start_program(std::span<const std::string_view> images);

/// The home screen's images, and the classes of its own program.
void start_home_screen();

}  // namespace host::process
