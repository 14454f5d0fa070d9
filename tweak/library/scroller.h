#pragma once

#include "platform/UIKit/UIScrollView.h"

/// Delegate of the paging scroll view.
struct Scroller : objc::Bound<Scroller, "Scroller", UIScrollView> {};

namespace sonavue {

void make_scroller();

}  // namespace sonavue
