// An extension that makes many of the system's boolean methods leave garbage above the lowest byte
// of the result's register, as compiled code is free to do.

#include <iterator>
#include <string_view>
#include <utility>

#include "objc/hook.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace {

constexpr long kByte = 0xff;
constexpr long kRubbish = 0x5a5a'5a5a'5a00;

struct Question {
  const char* class_name;
  const char* selector;
};

constexpr Question kQuestions[] = {
    {"UIView", "isHidden"},
    {"UIView", "isUserInteractionEnabled"},
    {"UIView", "isKindOfClass:"},
    {"UIResponder", "isFirstResponder"},
    {"UIScrollView", "isScrollEnabled"},
    {"UITextField", "isEditing"},
    {"SBIconController", "isEditing"},
    {"SBIconView", "isEditing"},
    {"SBIconView", "isInDock"},
    {"SBMediaController", "isPlaying"},
    {"SBMediaController", "togglePlayPause"},
    {"SBUIController", "clickedMenuButton"},
    {"SBUIController", "handleMenuDoubleTap"},
};
constexpr std::size_t kOfClasses = std::size(kQuestions);
// The classes of numbers and strings have no reliable names.
constexpr std::size_t kCount = kOfClasses + 3;

objc::Imp before[kCount];
const char* selectors[kCount];
int answers[kCount];

template <std::size_t Index>
long littered(objc::Id self, objc::Sel selector, objc::Id a, objc::Id b, objc::Id c, objc::Id d) {
  using Body = BOOL (*)(objc::Id, objc::Sel, objc::Id, objc::Id, objc::Id, objc::Id);
  ++answers[Index];
  return (reinterpret_cast<Body>(before[Index])(self, selector, a, b, c, d) & kByte) | kRubbish;
}

template <std::size_t Index>
void litter(objc::Class cls, const char* selector) {
  selectors[Index] = selector;
  MSHookMessageEx(cls, sel_registerName(selector), reinterpret_cast<objc::Imp>(&littered<Index>),
                  &before[Index]);
}

template <std::size_t... Indexes>
void litter_classes(std::index_sequence<Indexes...>) {
  (litter<Indexes>(objc_getClass(kQuestions[Indexes].class_name), kQuestions[Indexes].selector),
   ...);
}

/// How often methods with this selector were called, by any code.
int count_answers(objc::Object, NSString selector) {
  int sum = 0;
  for (std::size_t i = 0; i < kCount; ++i)
    if (std::string_view(selector.UTF8String()) == selectors[i]) sum += answers[i];
  return sum;
}

[[gnu::constructor]] void load() {
  litter_classes(std::make_index_sequence<kOfClasses>());
  const objc::Class truths = objc::class_of(NSNumber::numberWithBool(YES).id());
  const objc::Class texts = objc::class_of("text"_ns.id());
  litter<kOfClasses>(truths, "boolValue");
  litter<kOfClasses + 1>(texts, "isEqualToString:");
  litter<kOfClasses + 2>(texts, "isEqual:");
  objc::ClassBuilder("Litterer", "NSObject").class_method<&count_answers>("answersOf:").finish();
}

}  // namespace
