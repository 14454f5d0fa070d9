#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/pane/style_page.h"

namespace sonavue {

/// A text of the wizard. It is not translated.
struct PageText {
  NSString text;
  CGRect frame;
  NSInteger lines = 10;
};

/// Appends a white page with that text to `pages` and returns the page's view.
UIView add_text_page(NSMutableArray pages, const PageText& text);

/// Adds a row that sends `action` to `target`. `picture` is the path of its picture.
void add_linker(UIView page, CGRect frame, NSString name, NSString picture, styleController target,
                objc::Sel action);

}  // namespace sonavue
