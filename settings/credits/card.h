#pragma once

#include "objc/ref.h"
#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/credits/author.h"

namespace sonavue {

/// The full-screen card of an author: what else there is of them, and ways to reach them. The
/// actions are the cell's.
[[nodiscard]] objc::Ref<UIViewController> make_card(const Author& author, PSTableCell cell);

/// A tile at the end of the strip that sends `action` to the cell. Every tile of the strip before
/// it, and nothing else, is a subview of the container.
void add_tile(UIView container, NSString name, NSString picture_path, objc::Sel action,
              PSTableCell cell);

}  // namespace sonavue
