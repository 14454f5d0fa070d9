#include "host/uikit/touch/present_touches.h"

#include "host/uikit/touch/event.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {
namespace {

std::vector<objc::Ref<UITouch>>& all() {
  // Never destroyed: its objects must not be released after the runtime is gone.
  static auto& touches = *new std::vector<objc::Ref<UITouch>>;
  return touches;
}

}  // namespace

std::vector<objc::Ref<UITouch>> present_touches() {
  return all();
}

std::vector<objc::Ref<UITouch>> touches_on_screen() {
  std::vector<objc::Ref<UITouch>> found;
  const UITouch changed = objc::state_of<Event>(touches_event()).changed_touch();
  for (const auto& touch : all()) {
    if (touch.get() == changed || objc::state_of<Touch>(touch.get()).is_down())
      found.push_back(touch);
  }
  return found;
}

void add_present_touch(UITouch touch) {
  all().push_back(objc::Ref<UITouch>::retain(touch));
}

void drop_finished_touches() {
  std::erase_if(all(), [](const auto& touch) {
    const Touch& state = objc::state_of<Touch>(touch.get());
    return !state.is_down() && !state.view_awaits_more();
  });
}

}  // namespace host::uikit
