#include "host/screen/help_page.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "host/screen/key_list.h"
#include "host/screen/shapes.h"

namespace host::screen {
namespace {

// In units of the card, which is scaled as a whole.
constexpr double kCardWidth = 360;
constexpr double kCardMargin = 18;
constexpr double kRowHeight = 24;
constexpr double kSecondLine = 13;
constexpr double kGroupGap = 12;
constexpr double kTitleRow = 34;
constexpr double kGroupTitle = 22;
constexpr double kKeysWidth = 136;
constexpr double kCapHeight = 17;
constexpr double kCapTop = 2;
constexpr double kCapPadding = 6;
constexpr double kCapGap = 4;
constexpr double kCapRadius = 4;
// From the top of each to its baseline.
constexpr double kTitleBaseline = 14;
constexpr double kGroupBaseline = 11;
constexpr double kRowBaseline = 15;
constexpr double kCapBaseline = 12.5;
constexpr double kCardRadius = 16;
// The card keeps this share of the window free around it.
constexpr double kLargestShare = 0.96;
constexpr std::string_view kAlternative = ", ";

constexpr double kTitleSize = 17;
constexpr double kHelpSize = 12;
constexpr double kSmallSize = 10.5;

struct Shade {
  double light;
  double alpha = 1;
};
constexpr Shade kVeil{0, 0.45};
constexpr Shade kCard{0.12, 0.96};
constexpr Shade kCardEdge{1, 0.12};
constexpr Shade kKeyCap{0.27};
constexpr Shade kCapEdge{0.42};
constexpr Shade kHelpLight{0.95};
constexpr Shade kHelpFaint{0.62};

void set(cairo_t* drawing, Shade shade) {
  cairo_set_source_rgba(drawing, shade.light, shade.light, shade.light, shade.alpha);
}

void set_font(cairo_t* drawing, double size, cairo_font_weight_t weight) {
  cairo_select_font_face(drawing, "Inter", CAIRO_FONT_SLANT_NORMAL, weight);
  cairo_set_font_size(drawing, size);
}

double width_of(cairo_t* drawing, const std::string& text) {
  cairo_text_extents_t extents;
  cairo_text_extents(drawing, text.c_str(), &extents);
  return extents.x_advance;
}

void write(cairo_t* drawing, const std::string& text, double x, double baseline, Shade shade) {
  set(drawing, shade);
  cairo_move_to(drawing, x, baseline);
  cairo_show_text(drawing, text.c_str());
}

void fill_with_edge(cairo_t* drawing, Shade inside, Shade edge) {
  set(drawing, inside);
  cairo_fill_preserve(drawing);
  set(drawing, edge);
  cairo_set_line_width(drawing, 1);
  cairo_stroke(drawing);
}

/// Draws one key and returns the x behind it.
double draw_cap(cairo_t* drawing, const std::string& key, double x, double top) {
  const double width = std::max(width_of(drawing, key) + 2 * kCapPadding, kCapHeight);
  add_rounded(drawing, {x, top, width, kCapHeight}, kCapRadius);
  fill_with_edge(drawing, kKeyCap, kCapEdge);
  write(drawing, key, x + (width - width_of(drawing, key)) / 2, top + kCapBaseline, kHelpLight);
  return x + width + kCapGap;
}

double height_of(const KeyRow& row) {
  return kRowHeight + (*row.mouse == '\0' ? 0 : kSecondLine);
}

double card_height() {
  double height = 2 * kCardMargin + kTitleRow - kGroupGap;
  for (const KeyGroup& group : kKeyGroups) {
    height += kGroupTitle + kGroupGap;
    for (const KeyRow& row : group)
      height += height_of(row);
  }
  return height;
}

void draw_keys(cairo_t* drawing, std::string_view keys, double top) {
  set_font(drawing, kSmallSize, CAIRO_FONT_WEIGHT_NORMAL);
  double x = kCardMargin;
  while (!keys.empty()) {
    const auto end = std::min(keys.find(kAlternative), keys.size());
    x = draw_cap(drawing, std::string(keys.substr(0, end)), x, top);
    keys.remove_prefix(std::min(end + kAlternative.size(), keys.size()));
  }
}

void draw_row(cairo_t* drawing, const KeyRow& row, double top) {
  draw_keys(drawing, row.keys, top + kCapTop);
  const double x = kCardMargin + kKeysWidth + kCapGap;
  set_font(drawing, kHelpSize, CAIRO_FONT_WEIGHT_NORMAL);
  write(drawing, row.does, x, top + kRowBaseline, kHelpLight);
  if (*row.mouse == '\0') return;
  set_font(drawing, kSmallSize, CAIRO_FONT_WEIGHT_NORMAL);
  write(drawing, std::string("or ") + row.mouse, x, top + kRowBaseline + kSecondLine, kHelpFaint);
}

void draw_card(cairo_t* drawing) {
  add_rounded(drawing, {0, 0, kCardWidth, card_height()}, kCardRadius);
  fill_with_edge(drawing, kCard, kCardEdge);
  set_font(drawing, kTitleSize, CAIRO_FONT_WEIGHT_BOLD);
  write(drawing, "Keys", kCardMargin, kCardMargin + kTitleBaseline, kHelpLight);
  double top = kCardMargin + kTitleRow;
  for (const KeyGroup& group : kKeyGroups) {
    set_font(drawing, kSmallSize, CAIRO_FONT_WEIGHT_BOLD);
    write(drawing, group.title, kCardMargin, top + kGroupBaseline, kHelpFaint);
    top += kGroupTitle;
    for (const KeyRow& row : group) {
      draw_row(drawing, row, top);
      top += height_of(row);
    }
    top += kGroupGap;
  }
}

}  // namespace

void draw_help_page(cairo_t* drawing, CGSize size) {
  set(drawing, kVeil);
  cairo_paint(drawing);
  const double height = card_height();
  const double scale = kLargestShare * std::min(size.width / kCardWidth, size.height / height);
  cairo_translate(drawing, (size.width - kCardWidth * scale) / 2,
                  (size.height - height * scale) / 2);
  cairo_scale(drawing, scale, scale);
  draw_card(drawing);
}

}  // namespace host::screen
