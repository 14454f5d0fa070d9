#include "host/uikit/text_layout/pango_text.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace host::uikit {
namespace {

PangoContext* make_context() {
  PangoContext* context = pango_font_map_create_context(pango_cairo_font_map_get_default());
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context, FALSE);
  return context;
}

PangoContext* shared_context() {
  static PangoContext* const context = make_context();
  return context;
}

PangoFontDescription* describe(const TextStyle& style) {
  PangoFontDescription* description = pango_font_description_new();
  pango_font_description_set_family_static(description, style.face.drawn_family);
  pango_font_description_set_weight(description, static_cast<PangoWeight>(style.face.weight));
  pango_font_description_set_style(description,
                                   style.face.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  pango_font_description_set_absolute_size(description,
                                           style.size * style.face.size_factor * PANGO_SCALE);
  return description;
}

guint16 channel(double value) {
  return static_cast<guint16>(std::lround(std::clamp(value, 0.0, 1.0) * 65535));
}

class AttributeList {
 public:
  AttributeList() : list_(pango_attr_list_new()) {}
  ~AttributeList() { pango_attr_list_unref(list_); }
  AttributeList(const AttributeList&) = delete;
  AttributeList& operator=(const AttributeList&) = delete;

  void add(PangoAttribute* attribute, const TextRun& run) {
    attribute->start_index = static_cast<guint>(run.begin);
    attribute->end_index = static_cast<guint>(run.end);
    pango_attr_list_insert(list_, attribute);
  }
  PangoAttrList* get() const { return list_; }

 private:
  PangoAttrList* list_;
};

void add_color(AttributeList& list, const TextRun& run) {
  const auto& color = run.style.color;
  list.add(pango_attr_foreground_new(channel(color.red), channel(color.green), channel(color.blue)),
           run);
  // To Pango, an alpha of 0 means that none was given.
  list.add(pango_attr_foreground_alpha_new(std::max<guint16>(channel(color.alpha), 1)), run);
  const auto& behind = run.style.background;
  if (behind.alpha <= 0) return;
  list.add(
      pango_attr_background_new(channel(behind.red), channel(behind.green), channel(behind.blue)),
      run);
  list.add(pango_attr_background_alpha_new(channel(behind.alpha)), run);
}

// The platform's digits all have one width, which keeps a clock from jittering. The feature applies
// to digits only: the font would also widen a colon.
void add_tabular_digits(AttributeList& list, std::string_view bytes, const TextRun& run) {
  constexpr std::string_view kDigits = "0123456789";
  std::size_t begin = bytes.find_first_of(kDigits, run.begin);
  while (begin < run.end) {
    const std::size_t end = std::min(bytes.find_first_not_of(kDigits, begin), run.end);
    list.add(pango_attr_font_features_new("tnum=1"), {begin, end, {}});
    begin = bytes.find_first_of(kDigits, end);
  }
}

void add_style(AttributeList& list, const TextRun& run) {
  const TextStyle& style = run.style;
  PangoFontDescription* font = describe(style);
  list.add(pango_attr_font_desc_new(font), run);
  pango_font_description_free(font);
  const double spacing = style.kern + style.face.tracking * style.size;
  if (spacing != 0) list.add(pango_attr_letter_spacing_new(pango_units(spacing)), run);
  if (style.underline) list.add(pango_attr_underline_new(PANGO_UNDERLINE_SINGLE), run);
  add_color(list, run);
}

}  // namespace

int pango_units(double points) {
  return static_cast<int>(std::lround(points * PANGO_SCALE));
}

LayoutPointer make_pango_layout(const StyledText& text) {
  LayoutPointer layout(pango_layout_new(shared_context()));
  pango_layout_set_text(layout.get(), text.bytes.data(), static_cast<int>(text.bytes.size()));
  AttributeList attributes;
  for (const TextRun& run : text.runs) {
    add_style(attributes, run);
    add_tabular_digits(attributes, text.bytes, run);
  }
  pango_layout_set_attributes(layout.get(), attributes.get());
  if (!text.runs.empty()) {
    // Lines without characters, and ellipses, take the first style.
    PangoFontDescription* font = describe(text.runs.front().style);
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
  }
  return layout;
}

}  // namespace host::uikit
