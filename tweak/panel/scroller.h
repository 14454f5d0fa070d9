#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIScrollView.h"

/// Delegate of the paging scroll view.
struct Scroller : objc::Own<Scroller, "Scroller", UIScrollView> {};

namespace sonavue {

void make_scroller();

/// Makes the paging scroll view that contains all pages.
void make_pages();

/// Enables paging. Call it once the pages exist. The delegate is never released, since the scroll
/// view does not retain it.
void make_page_scrolling();

}  // namespace sonavue
