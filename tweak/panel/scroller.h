#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIScrollView.h"

/// Delegate of the paging scroll view.
struct Scroller : objc::Own<Scroller, "Scroller", UIScrollView> {};

namespace sonavue {

void make_scroller();

}  // namespace sonavue
