#include "host/activator/registry/listener_questions.h"

#include "host/activator/event/strings.h"
#include "host/activator/registry/careful_call.h"
#include "platform/UIKit/UIScreen.h"

namespace host::activator {
namespace {

/// Nil for a listener that does not implement the question.
template <class Ask>
objc::Object answer(LAListener listener, const std::string& name, objc::Sel question, Ask ask) {
  return call_catching(name, "asked about itself", [&]() -> objc::Object {
    if (!listener.respondsToSelector(question)) return nil;
    return ask();
  });
}

std::optional<std::vector<std::string>> modes_in(objc::Object object) {
  const auto list = objc::cast<NSArray>(object);
  if (!list.isKindOfClass(NSArray::cls())) return std::nullopt;
  std::vector<std::string> modes;
  for (const objc::Object entry : list.of()) {
    std::string name = to_string(entry);
    if (mode_named(name)) modes.push_back(std::move(name));
  }
  return modes;
}

UIImage image_or_nil(objc::Object object) {
  const auto image = objc::cast<UIImage>(object);
  return image.isKindOfClass(UIImage::cls()) ? image : UIImage();
}

}  // namespace

ListenerRecord describe(LAActivator activator, LAListener listener, const std::string& name) {
  const NSString ns_name = to_ns(name);
  const auto asked = [&](objc::Sel question, auto ask) {
    return answer(listener, name, question, ask);
  };
  ListenerRecord record;
  record.name = name;
  record.title = to_string(
      asked("activator:requiresLocalizedTitleForListenerName:"_sel,
            [&]() -> objc::Object { return listener.requiresLocalizedTitle(activator, ns_name); }));
  record.description = to_string(asked(
      "activator:requiresLocalizedDescriptionForListenerName:"_sel,
      [&]() -> objc::Object { return listener.requiresLocalizedDescription(activator, ns_name); }));
  record.group = to_string(
      asked("activator:requiresLocalizedGroupForListenerName:"_sel,
            [&]() -> objc::Object { return listener.requiresLocalizedGroup(activator, ns_name); }));
  record.modes = modes_in(asked(
      "activator:requiresCompatibleEventModesForListenerWithName:"_sel,
      [&]() -> objc::Object { return listener.requiresCompatibleEventModes(activator, ns_name); }));
  return record;
}

UIImage icon_of(LAActivator activator, LAListener listener, const std::string& name) {
  const NSString ns_name = to_ns(name);
  const CGFloat scale = UIScreen::mainScreen().scale();
  const UIImage small = image_or_nil(answer(
      listener, name, "activator:requiresSmallIconForListenerName:scale:"_sel,
      [&]() -> objc::Object { return listener.requiresSmallIcon(activator, ns_name, scale); }));
  if (small) return small;
  return image_or_nil(
      answer(listener, name, "activator:requiresIconForListenerName:scale:"_sel,
             [&]() -> objc::Object { return listener.requiresIcon(activator, ns_name, scale); }));
}

}  // namespace host::activator
