#pragma once

#include "platform/Foundation/NSSet.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"
#include "platform/SpringBoard/SBIconView.h"
#include "platform/SpringBoard/SBMediaController.h"
#include "platform/UIKit/UIEvent.h"
#include "platform/UIKit/UIWindow.h"

// System events that close or update the panel. Each function replaces the method that the table in
// Sonavue2.cpp assigns to it.

namespace sonavue {

void touches_began_on_icon(SBIconView self, NSSet touches, UIEvent event);

BOOL home_button_clicked(objc::Object self);
BOOL home_button_clicked_twice(objc::Object self);

void banner_presented(objc::Object self, objc::Object context, NSInteger reason);
void display_turned_off(objc::Object self);
void unlock_prepared(objc::Object self);
void notification_center_shown(objc::Object self);
void control_center_shown(objc::Object self);

BOOL reachability_is_supported(objc::Object self);
void reachability_deactivated(objc::Object self);
void reachability_activated(objc::Object self);
void time_changed(objc::Object self);
void kept_alive(objc::Object self, objc::Object timer);

void volume_changed(SBMediaController self, objc::Object notification);
BOOL window_is_secure(UIWindow self);
void playback_state_changed(MPMusicPlayerController self, NSInteger state);

}  // namespace sonavue
