// The scene as nodes of GTK 4, drawn by cairo as its cairo renderer does, without a display:
// `gtk_scene part|full|blur [PICTURE.png]`. Texts are laid out once; nodes are made in each frame.

#include <gtk/gtk.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/scene/picture.h"
#include "bench/scene/scene_run.h"

namespace {

using bench::SceneKind;
using bench::ScenePicture;

GdkTexture* texture_of(const ScenePicture& picture) {
  const std::size_t stride = static_cast<std::size_t>(picture.width) * sizeof(std::uint32_t);
  GBytes* bytes =
      g_bytes_new(picture.pixels.data(), stride * static_cast<std::size_t>(picture.height));
  GdkTexture* texture = gdk_memory_texture_new(picture.width, picture.height,
                                               GDK_MEMORY_B8G8R8A8_PREMULTIPLIED, bytes, stride);
  g_bytes_unref(bytes);
  return texture;
}

class Stage {
 public:
  explicit Stage(SceneKind kind) : kind_(kind) {
    const ScenePicture sharp = bench::photograph(bench::kSceneWidth, bench::kBackgroundHeight, 0);
    background_ = texture_of(is_live() ? sharp : blurred(sharp, bench::kBlurRadius));
    artwork_ = texture_of(bench::photograph(bench::kArtworkSide, bench::kArtworkSide, 2));
    for (int i = 0; i < bench::kIconCount; ++i) {
      icons_.push_back(texture_of(bench::icon_picture(i)));
      labels_.push_back(layout_of("Icon " + std::to_string(i), bench::kLabelSize));
    }
    title_ = layout_of(bench::kTitle, bench::kTitleSize);
  }

  void draw(int frame) {
    GtkSnapshot* snapshot = gtk_snapshot_new();
    add_background(snapshot, frame);
    for (int i = 0; i < bench::kIconCount; ++i)
      add_icon(snapshot, i);
    add_picture(snapshot, artwork_, bench::kArtworkLeft, bench::artwork_top(frame));
    add_text(snapshot, title_, bench::kTitleLeft, bench::kTitleTop);
    GskRenderNode* node = gtk_snapshot_free_to_node(snapshot);
    cairo_save(drawing_);
    if (kind_ == SceneKind::kPart && frame > 0) clip_to_change(frame);
    gsk_render_node_draw(node, drawing_);
    cairo_restore(drawing_);
    cairo_surface_flush(surface_);
    gsk_render_node_unref(node);
  }
  cairo_surface_t* surface() const { return surface_; }

 private:
  bool is_live() const { return kind_ == SceneKind::kBlur; }

  PangoLayout* layout_of(const std::string& text, int size) {
    PangoLayout* layout = pango_layout_new(context_);
    PangoFontDescription* font = pango_font_description_from_string("Inter");
    pango_font_description_set_absolute_size(font, size * PANGO_SCALE);
    pango_layout_set_font_description(layout, font);
    pango_layout_set_text(layout, text.c_str(), -1);
    pango_font_description_free(font);
    return layout;
  }

  static void add_picture(GtkSnapshot* snapshot, GdkTexture* texture, double left, double top) {
    const graphene_rect_t place =
        GRAPHENE_RECT_INIT(static_cast<float>(left), static_cast<float>(top),
                           static_cast<float>(gdk_texture_get_width(texture)),
                           static_cast<float>(gdk_texture_get_height(texture)));
    gtk_snapshot_append_texture(snapshot, texture, &place);
  }
  static void add_text(GtkSnapshot* snapshot, PangoLayout* layout, int left, int top) {
    const GdkRGBA white{1, 1, 1, 1};
    const graphene_point_t place =
        GRAPHENE_POINT_INIT(static_cast<float>(left), static_cast<float>(top));
    gtk_snapshot_save(snapshot);
    gtk_snapshot_translate(snapshot, &place);
    gtk_snapshot_append_layout(snapshot, layout, &white);
    gtk_snapshot_restore(snapshot);
  }
  void add_background(GtkSnapshot* snapshot, int frame) const {
    if (is_live()) gtk_snapshot_push_blur(snapshot, bench::kBlurRadius);
    add_picture(snapshot, background_, 0, kind_ == SceneKind::kPart ? 0 : -(frame % 2));
    if (is_live()) gtk_snapshot_pop(snapshot);
  }
  void add_icon(GtkSnapshot* snapshot, int number) const {
    const int left = bench::icon_left(number);
    const int top = bench::icon_top(number);
    const auto index = static_cast<std::size_t>(number);
    add_picture(snapshot, icons_[index], left, top);
    add_text(snapshot, labels_[index], left + bench::kLabelIndent, top + bench::kLabelDrop);
  }
  void clip_to_change(int frame) {
    const auto [first, second] =
        std::minmax(bench::artwork_top(frame - 1), bench::artwork_top(frame));
    const double top = std::floor(first);
    cairo_rectangle(drawing_, bench::kArtworkLeft, top, bench::kArtworkSide,
                    std::ceil(second) + bench::kArtworkSide - top);
    cairo_clip(drawing_);
  }

  const SceneKind kind_;
  PangoContext* context_ = pango_font_map_create_context(pango_cairo_font_map_get_default());
  GdkTexture* background_ = nullptr;
  GdkTexture* artwork_ = nullptr;
  std::vector<GdkTexture*> icons_;
  std::vector<PangoLayout*> labels_;
  PangoLayout* title_ = nullptr;
  cairo_surface_t* surface_ =
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, bench::kSceneWidth, bench::kSceneHeight);
  cairo_t* drawing_ = cairo_create(surface_);
};

}  // namespace

int main(int count, char** words) {
  const bench::SceneCommand command = bench::scene_command(count, words);
  if (!command.is_valid) {
    std::fprintf(stderr, "Usage: gtk_scene part|full|blur [PICTURE.png]\n");
    return 2;
  }
  // Registers the types of nodes. That there is no display does not matter.
  gtk_init_check();
  Stage stage(command.kind);
  bench::run_scene("GTK", command.kind, [&](int frame) { stage.draw(frame); });
  if (!command.picture.empty())
    cairo_surface_write_to_png(stage.surface(), command.picture.c_str());
}
