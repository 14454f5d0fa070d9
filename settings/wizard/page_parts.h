#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/pane/style_page.h"

namespace sonavue {

/// A text of the wizard, which nobody translates.
struct PageText {
  NSString text;
  CGRect frame;
  NSInteger lines = 10;
};

/// A white page with that text, at the end of `pages`. Gives its view.
UIView add_text_page(NSMutableArray pages, const PageText& text);

/// A row that sends `action` to `target`; its picture is the file at `picture`.
void add_linker(UIView page, CGRect frame, NSString name, NSString picture, styleController target,
                objc::Sel action);

}  // namespace sonavue
