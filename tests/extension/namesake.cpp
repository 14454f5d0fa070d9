// An extension that is loaded before the others and defines classes with names that they also want
// to use; the environment lists the names. It records which of its classes ever received a message.

#include <cstdlib>
#include <sstream>
#include <string>

#include "objc/class_builder.h"
#include "objc/image.h"
#include "platform/Activator/Activator.h"
#include "platform/Foundation/NSString.h"

namespace {

std::string& disturbed() {
  static std::string names;
  return names;
}

/// Runs before the first message to a class or to a subclass of it.
void initialize(objc::Object cls) {
  disturbed() += std::string(" ") + class_getName(reinterpret_cast<objc::Class>(cls.id()));
}

NSString disturbed_classes(objc::Object) {
  return NSString::stringWithUTF8String(disturbed().c_str());
}

[[gnu::constructor]] void load() {
  // Scenarios assign gestures whether or not one of our libraries has loaded the service.
  objc::load_image(kActivatorImage.c_str());
  const char* listed = std::getenv("NAMESAKES");
  std::istringstream names(listed ? listed : "");
  for (std::string name; names >> name;)
    objc::ClassBuilder(name.c_str(), "NSObject").class_method<&initialize>("initialize").finish();
  objc::ClassBuilder("Namesake", "NSObject")
      .class_method<&disturbed_classes>("disturbedClasses")
      .finish();
}

}  // namespace
