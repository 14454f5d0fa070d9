#include "host/inspection/view_tree.h"

#include <fmt/format.h>

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/geometry/window_list.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UILabel.h"

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

// Asks no object: some answer nothing at all.
bool is_kind_of(objc::Object object, objc::Class kind) {
  if (!object) return false;
  for (auto cls = objc::class_of(object.id()); cls; cls = class_getSuperclass(cls)) {
    if (cls == kind) return true;
  }
  return false;
}

std::string label_text(UIView view) {
  if (!is_kind_of(view, UILabel::cls())) return {};
  const NSString text = objc::cast<UILabel>(view).text();
  const char* const bytes = text ? text.UTF8String() : nullptr;
  return bytes ? bytes : "";
}

void add(std::vector<TreeLine>& lines, UIView view, int depth) {
  if (lines.size() > kMostLines) return;
  const bool is_cut = depth > kDeepest || lines.size() == kMostLines;
  lines.push_back({depth, view, is_cut});
  if (is_cut) return;
  for (const objc::Object subview : view.subviews().of())
    add(lines, objc::cast<UIView>(subview), depth + 1);
}

}  // namespace

UIView as_view(objc::Object object) {
  return is_kind_of(object, UIView::cls()) ? objc::cast<UIView>(object) : UIView();
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

ViewFacts facts_of(UIView view) {
  return {.class_name = class_name(view),
          .frame = view.frame(),
          .on_screen = uikit::convert_rect(view, view.bounds(), {}),
          .clips = view.clipsToBounds() == YES,
          .is_hidden = view.isHidden() == YES,
          .alpha = view.alpha(),
          .gestures = gestures_of(view),
          .text = label_text(view)};
}

std::string text_of(const TreeLine& line) {
  if (line.is_cut) return "…";
  const ViewFacts facts = facts_of(line.view);
  std::string text =
      fmt::format("{} {{{{{}, {}}}, {{{}, {}}}}}", facts.class_name, facts.frame.min_x(),
                  facts.frame.min_y(), facts.frame.size.width, facts.frame.size.height);
  if (facts.is_hidden) text += " hidden";
  // A layer keeps its opacity in single precision.
  if (facts.alpha != 1) text += fmt::format(" alpha {}", static_cast<float>(facts.alpha));
  if (!facts.gestures.empty()) text += fmt::format(" gestures ({})", facts.gestures);
  return text;
}

}  // namespace host::inspection
