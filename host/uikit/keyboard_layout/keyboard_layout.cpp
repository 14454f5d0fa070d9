#include "host/uikit/keyboard_layout/keyboard_layout.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/uikit/keyboard_layout/number_pad.h"
#include "host/uikit/keyboard_layout/row_builder.h"

namespace host::uikit {
namespace {

/// The characters of a plane by row; the lowest row is the same for all.
struct PlaneRows {
  std::string_view first, second, third, tablet_third;
};

const PlaneRows& rows_of(KeyPlane plane) {
  static constexpr PlaneRows kLetters{"qwertyuiop", "asdfghjkl", "zxcvbnm", "zxcvbnm,."};
  static constexpr PlaneRows kNumbers{"1234567890", "-/:;()$&@\"", ".,?!'", ".,?!'\"_%+"};
  static constexpr PlaneRows kSymbols{"[]{}#%^*+=", "_\\|~<>€£¥•", ".,?!'", ".,?!'\"_%+"};
  if (plane == KeyPlane::Letters) return kLetters;
  return plane == KeyPlane::Numbers ? kNumbers : kSymbols;
}

constexpr double kThirdRowBegin = 1.5;
constexpr double kThirdRowColumns = 7;
constexpr double kWordKeyColumns = 2.5;
constexpr double kSpaceColumns = 5;

void add_lower_corner(RowBuilder& rows, KeyPlane plane, std::string_view numbers, double columns) {
  if (plane == KeyPlane::Letters) {
    rows.plane(KeyPlane::Numbers, numbers, columns);
  } else {
    rows.plane(KeyPlane::Letters, "ABC", columns);
  }
}

void add_third_row_begin(RowBuilder& rows, KeyPlane plane, double columns) {
  if (plane == KeyPlane::Letters) {
    rows.key(KeyKind::Shift, "", columns);
  } else if (plane == KeyPlane::Numbers) {
    rows.plane(KeyPlane::Symbols, "#+=", columns);
  } else {
    rows.plane(KeyPlane::Numbers, "123", columns);
  }
}

/// Adds the space key, and the keys that a type of text often needs.
void add_middle(RowBuilder& rows, UIKeyboardType type) {
  switch (type) {
    case UIKeyboardTypeURL:
      rows.character(".", 1.5);
      rows.character("/", 1.5);
      rows.character(".com", 2);
      break;
    case UIKeyboardTypeEmailAddress:
      rows.key(KeyKind::Space, "space", 2.6);
      rows.characters("@.", 1.2);
      break;
    case UIKeyboardTypeTwitter:
      rows.key(KeyKind::Space, "space", 2.6);
      rows.characters("@#", 1.2);
      break;
    case UIKeyboardTypeWebSearch:
      rows.key(KeyKind::Space, "space", kSpaceColumns - 1.2);
      rows.character(".", 1.2);
      break;
    default:
      rows.key(KeyKind::Space, "space", kSpaceColumns);
      break;
  }
}

void lay_out_phone(RowBuilder& rows, const BoardMetrics& metrics, KeyPlane plane,
                   const KeyboardTraits& traits) {
  const PlaneRows& texts = rows_of(plane);
  rows.begin(0, 0);
  rows.characters(texts.first);
  rows.begin(1, (metrics.columns - static_cast<double>(code_points(texts.second).size())) / 2);
  rows.characters(texts.second);
  rows.begin(2, 0);
  add_third_row_begin(rows, plane, metrics.edge_key_columns);
  rows.begin(2, kThirdRowBegin);
  rows.characters(texts.third, kThirdRowColumns / static_cast<double>(texts.third.size()));
  rows.last(KeyKind::Backspace, metrics.edge_key_columns);
  rows.begin(3, 0);
  add_lower_corner(rows, plane, "123", kWordKeyColumns);
  add_middle(rows, traits.type);
  rows.key(KeyKind::Return, return_title(traits.return_key), kWordKeyColumns);
}

void lay_out_tablet(RowBuilder& rows, KeyPlane plane, const KeyboardTraits& traits) {
  const PlaneRows& texts = rows_of(plane);
  rows.begin(0, 0);
  rows.characters(texts.first);
  rows.key(KeyKind::Backspace, "", 1);
  // Nine keys are indented by half a column; the longer rows of symbols are not.
  const double letters = 9;
  rows.begin(1, plane == KeyPlane::Letters ? 0.5 : 0);
  const double wide = plane == KeyPlane::Letters ? 1 : (letters + 0.5) / 10;
  rows.characters(texts.second, wide);
  rows.key(KeyKind::Return, return_title(traits.return_key), 1.5);
  rows.begin(2, 0);
  add_third_row_begin(rows, plane, 1);
  rows.characters(texts.tablet_third);
  add_third_row_begin(rows, plane, 1);
  rows.begin(3, 0);
  add_lower_corner(rows, plane, ".?123", 2);
  add_middle(rows, traits.type);
  rows.begin(3, 2 + kSpaceColumns);
  add_lower_corner(rows, plane, ".?123", 2);
  rows.key(KeyKind::Dismiss, "", 2);
}

}  // namespace

KeyboardLayout make_layout(const BoardMetrics& metrics, KeyPlane plane,
                           const KeyboardTraits& traits) {
  KeyboardLayout layout;
  layout.size = {metrics.screen.width, metrics.height};
  if (!metrics.is_tablet && is_number_pad(traits.type)) {
    layout.is_number_pad = true;
    layout.keys = make_number_pad(metrics, traits.type);
    return layout;
  }
  RowBuilder rows(metrics);
  if (metrics.is_tablet) {
    lay_out_tablet(rows, plane, traits);
  } else {
    lay_out_phone(rows, metrics, plane, traits);
  }
  layout.keys = rows.take();
  for (Key& key : layout.keys)
    key.is_action = key.kind == KeyKind::Return && return_acts(traits.return_key);
  return layout;
}

std::optional<std::size_t> KeyboardLayout::key_at(CGPoint point) const {
  std::optional<std::size_t> nearest;
  // The row counts first: a finger beyond the end of a short row means that row's last key.
  double least_down = 0;
  double least_across = 0;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const CGRect& frame = keys[i].frame;
    const double down = std::abs(point.y - frame.centre().y);
    const double across = std::max({0.0, frame.min_x() - point.x, point.x - frame.max_x()});
    if (nearest && (down > least_down || (down == least_down && across >= least_across))) continue;
    nearest = i;
    least_down = down;
    least_across = across;
  }
  return nearest;
}

const Key* KeyboardLayout::first_of(KeyKind kind) const {
  const auto found =
      std::find_if(keys.begin(), keys.end(), [kind](const Key& key) { return key.kind == kind; });
  return found == keys.end() ? nullptr : &*found;
}

KeyPlane first_plane(UIKeyboardType type) {
  const bool numbers = type == UIKeyboardTypeNumbersAndPunctuation || is_number_pad(type);
  return numbers ? KeyPlane::Numbers : KeyPlane::Letters;
}

const char* return_title(UIReturnKeyType type) {
  static constexpr std::array kTitles{"return", "Go",   "Search", "Join", "Next",          "Route",
                                      "Search", "Send", "Search", "Done", "Emergency Call"};
  const auto index = static_cast<std::size_t>(type);
  return index < kTitles.size() ? kTitles[index] : kTitles[0];
}

bool return_acts(UIReturnKeyType type) {
  return type != UIReturnKeyDefault && type != UIReturnKeyNext;
}

}  // namespace host::uikit
