#include "host/inspection/view_tree.h"

#include <fmt/format.h>

#include "host/uikit/geometry/window_list.h"
#include "platform/UIKit/UIGestureRecognizer.h"

namespace host::inspection {
namespace {

// A class may answer `subviews` with anything, itself for instance.
constexpr int kDeepest = 100;
constexpr std::size_t kMostLines = 10'000;

std::string class_name(objc::Object object) {
  return class_getName(objc::class_of(object.id()));
}

std::string gestures_of(UIView view) {
  std::string names;
  for (const objc::Object gesture : view.gestureRecognizers().of())
    names += (names.empty() ? "" : ", ") + class_name(gesture);
  return names;
}

std::string text_of(UIView view) {
  const CGRect frame = view.frame();
  std::string text = fmt::format("{} {{{{{}, {}}}, {{{}, {}}}}}", class_name(view), frame.min_x(),
                                 frame.min_y(), frame.size.width, frame.size.height);
  if (view.isHidden()) text += " hidden";
  // A layer keeps its opacity in single precision.
  if (view.alpha() != 1) text += fmt::format(" alpha {}", static_cast<float>(view.alpha()));
  const std::string gestures = gestures_of(view);
  if (!gestures.empty()) text += fmt::format(" gestures ({})", gestures);
  return text;
}

void add(std::vector<TreeLine>& lines, UIView view, int depth) {
  if (lines.size() > kMostLines) return;
  if (depth > kDeepest || lines.size() == kMostLines) {
    lines.push_back({depth, view, "…"});
    return;
  }
  lines.push_back({depth, view, text_of(view)});
  for (const objc::Object subview : view.subviews().of())
    add(lines, objc::cast<UIView>(subview), depth + 1);
}

}  // namespace

// Asks no object: some answer nothing at all.
UIView as_view(objc::Object object) {
  if (!object) return {};
  for (auto cls = objc::class_of(object.id()); cls; cls = class_getSuperclass(cls)) {
    if (cls == UIView::cls()) return objc::cast<UIView>(object);
  }
  return {};
}

std::vector<TreeLine> tree_of(UIView root) {
  std::vector<TreeLine> lines;
  add(lines, root, 0);
  return lines;
}

std::vector<TreeLine> tree_of_windows() {
  std::vector<TreeLine> lines;
  for (const UIWindow window : uikit::visible_windows())
    add(lines, window, 0);
  return lines;
}

}  // namespace host::inspection
