#include "host/uikit/touch/touch_traces.h"

#include "host/uikit/geometry/window_list.h"
#include "host/uikit/touch/present_touches.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

namespace host::uikit {
namespace {

std::string class_of(NSObject object) {
  return class_getName(objc::class_of(object.id()));
}

/// Sends the question to any view, whatever its class.
bool returns_yes(UIView view, objc::Sel question) {
  return view.respondsToSelector(question) && objc::send<BOOL>(view, question);
}

/// A selected view looks highlighted without a finger, and so do the texts and images in it.
bool is_highlighted(UIView view) {
  const bool only_looks_so =
      view.isKindOfClass(UILabel::cls()) || view.isKindOfClass(UIImageView::cls());
  return !only_looks_so && returns_yes(view, "isHighlighted"_sel) &&
         !returns_yes(view, "isSelected"_sel);
}

void look_at(UIView view, std::vector<std::string>& traces) {
  if (returns_yes(view, "isTracking"_sel)) traces.push_back(class_of(view) + " is held");
  if (is_highlighted(view)) traces.push_back(class_of(view) + " is highlighted");
  for (const auto recognizer : view.gestureRecognizers().of<UIGestureRecognizer>()) {
    if (recognizer.state() != UIGestureRecognizerStatePossible)
      traces.push_back(class_of(recognizer) + " of " + class_of(view) + " is under way");
  }
  for (const UIView child : view.subviews().of<UIView>())
    look_at(child, traces);
}

}  // namespace

std::vector<std::string> touch_traces() {
  std::vector<std::string> traces;
  for (const auto& touch : present_touches())
    traces.push_back("a finger is on " + class_of(touch->view()));
  for (const UIWindow window : visible_windows())
    look_at(window, traces);
  return traces;
}

}  // namespace host::uikit
