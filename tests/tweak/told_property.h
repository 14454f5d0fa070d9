#pragma once

#include <vector>

#include "host/runtime/hooking.h"
#include "objc/class_builder.h"
#include "platform/MediaPlayer/MPMediaItem.h"
#include "tests/tweak/panel_test.h"

namespace host::test {

/// While it exists, the library returns another value for a property of the songs with one title,
/// including values that no file can contain.
class ToldProperty {
 public:
  ToldProperty(std::string title, NSString property, objc::Object value)
      : title_(std::move(title)), property_(property), value_(value) {
    rules.push_back(this);
    if (!before)
      MSHookMessageEx(MPMediaItem::cls(), "valueForProperty:"_sel,
                      reinterpret_cast<objc::Imp>(&objc::MethodOf<&told>::call), &before);
  }
  ~ToldProperty() { std::erase(rules, this); }
  ToldProperty(const ToldProperty&) = delete;
  ToldProperty& operator=(const ToldProperty&) = delete;

 private:
  static objc::Object of_file(MPMediaItem self, NSString property) {
    using Function = objc::Id (*)(objc::Id, objc::Sel, objc::Id);
    return objc::Object(
        reinterpret_cast<Function>(before)(self.id(), "valueForProperty:"_sel, property.id()));
  }
  static objc::Object told(MPMediaItem self, NSString property) {
    const std::string title = text(of_file(self, MPMediaItemPropertyTitle));
    for (const ToldProperty* rule : rules)
      if (rule->title_ == title && rule->property_ == property) return rule->value_;
    return of_file(self, property);
  }

  static inline objc::Imp before = nullptr;
  static inline std::vector<const ToldProperty*> rules;

  std::string title_;
  NSString property_;
  objc::Object value_;
};

}  // namespace host::test
