#pragma once

#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// A view that a tap can press, and where it is on the screen.
struct FocusStop {
  objc::Ref<UIView> view;
  CGRect place;
};

/// Makes stops of all views of a class that handles touches itself. Enabled controls, rows that can
/// be selected and views with a recogniser of taps are stops anyway.
void add_focus_class(objc::Class cls);

/// Returns every stop that a finger at its centre would press, in no particular order.
std::vector<FocusStop> stops_in_sight();

/// Whether a finger at the centre of this stop would press it, rather than something in it or over
/// it.
bool is_in_sight(UIView stop);

/// A view's place in the coordinates of another; on the screen for nil.
CGRect place_in(UIView view, UIView other);

}  // namespace host::uikit
