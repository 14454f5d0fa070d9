#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIScrollView.h"

/// Delegate of the paging scroll view.
struct Scroller : objc::Own<Scroller, "Scroller", UIScrollView> {};

namespace sonavue {

void make_scroller();

/// Makes the paging scroll view, which all pages lie on.
void make_pages();

/// Lets the pages be turned, once they are there. Nothing keeps their delegate, which is never
/// released.
void make_page_scrolling();

}  // namespace sonavue
