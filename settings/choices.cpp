#include "settings/choices.h"

#include "settings/texts.h"

namespace sonavue {

NSArray blur_choices() {
  return NSArray::arrayWithObjects("adaptive_light"_ns, "light"_ns, "dark"_ns, "ultra_light"_ns,
                                   "light_low"_ns, "dark_low"_ns, "ultra_dark"_ns, "passcode"_ns,
                                   "colored"_ns, "semi_light"_ns, "flat_semi_light"_ns,
                                   "ultra_colored"_ns, "light_keyboard"_ns);
}

NSArray color_choices() {
  return NSArray::arrayWithObjects("black"_ns, "white"_ns, "gray"_ns, "red"_ns, "green"_ns,
                                   "blue"_ns, "cyan"_ns, "magenta"_ns, "orange"_ns, "purple"_ns,
                                   "brown"_ns, "clear"_ns);
}

NSArray ring_choices() {
  return NSArray::arrayWithObjects("volume"_ns, "time"_ns);
}

NSArray translated(NSArray choices) {
  const NSMutableArray texts = NSMutableArray::arrayWithCapacity(choices.count());
  for (const NSString choice : choices.of<NSString>())
    texts.addObject(Translator(choice));
  return texts;
}

}  // namespace sonavue
