#include <array>
#include <string_view>
#include <utility>

#include "host/uikit/text/edit_menu.h"
#include "host/uikit/text/text_field.h"
#include "host/uikit/text_layout/characters.h"
#include "host/uikit/text_layout/words.h"

// The keys of the physical keyboard that type nothing.

namespace host::uikit {
namespace {

bool take_prefix(std::string_view& name, std::string_view prefix) {
  if (!name.starts_with(prefix)) return false;
  name.remove_prefix(prefix.size());
  return true;
}

}  // namespace

std::size_t TextField::moved(Motion motion) const {
  switch (motion) {
    case Motion::ToPrevious:
      return caret_index_ > 0 ? character_start(text_.get(), caret_index_ - 1) : 0;
    case Motion::ToNext:
      return character_end(text_.get(), caret_index_);
    case Motion::ToPreviousWord:
      return previous_word_start(text_.get(), caret_index_);
    case Motion::ToNextWord:
      return next_word_end(text_.get(), caret_index_);
    case Motion::ToStart:
      return 0;
    case Motion::ToEnd:
      return text_->length();
  }
  return caret_index_;
}

void TextField::move_caret(Motion motion, Selecting selecting) {
  hide_edit_menu();
  const NSRange range = selection();
  const bool leaves = selecting == Selecting::No && range.length > 0;
  if (leaves && motion == Motion::ToPrevious) return put_caret(range.location);
  if (leaves && motion == Motion::ToNext) return put_caret(range.location + range.length);
  caret_index_ = moved(motion);
  if (selecting == Selecting::No) anchor_index_ = caret_index_;
  selection_changed();
}

BOOL TextField::press_key(NSString name) {
  struct Arrow {
    std::string_view name;
    Motion plain, with_control;
  };
  static constexpr std::array<Arrow, 4> kArrows{
      {{"left", Motion::ToPrevious, Motion::ToPreviousWord},
       {"right", Motion::ToNext, Motion::ToNextWord},
       {"home", Motion::ToStart, Motion::ToStart},
       {"end", Motion::ToEnd, Motion::ToEnd}}};
  std::string_view key = name.UTF8String();
  const bool control = take_prefix(key, "control-");
  const auto selecting = take_prefix(key, "shift-") ? Selecting::Yes : Selecting::No;
  for (const Arrow& arrow : kArrows) {
    if (arrow.name != key) continue;
    move_caret(control ? arrow.with_control : arrow.plain, selecting);
    return YES;
  }
  if (!control || key.size() != 1) return NO;
  switch (key[0]) {
    case 'a':
      select({0, text_->length()});
      return YES;
    case 'c':
      objc::send<>(self, "copy:"_sel, objc::Object());
      return YES;
    case 'x':
      objc::send<>(self, "cut:"_sel, objc::Object());
      return YES;
    case 'v':
      objc::send<>(self, "paste:"_sel, objc::Object());
      return YES;
    default:
      return NO;
  }
}

}  // namespace host::uikit
