// An extension that was there before the others and has classes of its own under names that they
// want to use, too, which the environment lists. It knows which of its classes were ever sent a
// message.

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

/// The first message to a class, or to one that is made of it, comes after this one.
void initialize(objc::Object cls) {
  disturbed() += std::string(" ") + class_getName(reinterpret_cast<objc::Class>(cls.id()));
}

NSString disturbed_classes(objc::Object) {
  return NSString::stringWithUTF8String(disturbed().c_str());
}

[[gnu::constructor]] void load() {
  // Scenarios give gestures away, whether one of ours has asked for the service or not.
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
