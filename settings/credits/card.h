#pragma once

#include "objc/ref.h"
#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/credits/author.h"

namespace sonavue {

/// The full-screen card of an author: their other packages, and ways to contact them. `cell`
/// implements the actions.
[[nodiscard]] objc::Ref<UIViewController> make_card(const Author& author, PSTableCell cell);

/// Appends a tile to the strip; a tap on it sends `action` to the cell. The container must have no
/// subviews except the strip's tiles.
void add_tile(UIView container, NSString name, NSString picture_path, objc::Sel action,
              PSTableCell cell);

}  // namespace sonavue
