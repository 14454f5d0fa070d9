#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// The picture in the application's folder for this screen; nil when there is none.
UIImage application_image(SBApplication application);

/// A grey icon with the first letter of a name.
UIImage initial_image(NSString name);

/// The icon of a folder: up to nine small images on a translucent ground.
UIImage folder_image(NSArray images);

}  // namespace host::springboard
