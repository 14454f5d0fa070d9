#pragma once

#include "host/springboard/model/wall_clock.h"
#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// The picture in the application's folder for this screen; nil when there is none.
UIImage application_image(SBApplication application);

/// The picture of a calendar with the day on it: the weekday in its band, the number below.
UIImage calendar_image(UIImage ground, const CalendarDay& day);

/// A grey icon with the first letter of a name.
UIImage initial_image(NSString name);

/// The icon of a folder: up to nine small images on a translucent ground.
UIImage folder_image(NSArray images);

}  // namespace host::springboard
