#pragma once

#include "host/springboard/model/wall_clock.h"
#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// Returns the picture for this screen from the application's folder; nil when there is none.
UIImage application_image(SBApplication application);

/// Returns `ground` with the day drawn on it: the weekday in its band, the number below.
UIImage calendar_image(UIImage ground, const CalendarDay& day);

/// Returns a grey icon with the first letter of `name`.
UIImage initial_image(NSString name);

/// Returns a folder's icon: up to nine small images on a translucent ground.
UIImage folder_image(NSArray images);

}  // namespace host::springboard
