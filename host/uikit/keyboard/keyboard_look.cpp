#include "host/uikit/keyboard/keyboard_look.h"

namespace host::uikit {
namespace {

using Rgba = quartzcore::Rgba;

constexpr Rgba grey(int level) {
  return {level / 255.0, level / 255.0, level / 255.0, 1};
}
constexpr Rgba color(int red, int green, int blue) {
  return {red / 255.0, green / 255.0, blue / 255.0, 1};
}

constexpr Rgba kBlue = color(0, 122, 255);

constexpr KeyboardLook kLight = {
    .ground = color(209, 213, 219),
    .key = grey(255),
    .function_key = color(172, 179, 190),
    .action_key = kBlue,
    .shadow = color(137, 139, 143),
    .text = grey(3),
    .action_text = grey(255),
    .chosen = kBlue,
    .chosen_text = grey(255),
    .line = color(160, 166, 176),
};

constexpr KeyboardLook kDark = {
    .ground = color(42, 42, 44),
    .key = color(104, 104, 107),
    .function_key = color(69, 69, 72),
    .action_key = kBlue,
    .shadow = color(20, 20, 21),
    .text = grey(255),
    .action_text = grey(255),
    .chosen = kBlue,
    .chosen_text = grey(255),
    .line = color(24, 24, 25),
};

}  // namespace

const KeyboardLook& look_of(UIKeyboardAppearance appearance) {
  return appearance == UIKeyboardAppearanceDark ? kDark : kLight;
}

}  // namespace host::uikit
