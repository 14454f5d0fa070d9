// Draws the scene with our compositor, moving: what the artwork changed (`part`), everything
// (`full`), everything with a live blur (`blur`). Each is compared with a plain copy of a frame,
// and with the same scene in Qt and GTK where their programs are built. `scene_bench part|full|blur
// [PICTURE.png]` draws one of them and writes the last frame.

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/scene/layer_scene.h"
#include "bench/scene/picture.h"
#include "bench/support/core_time.h"
#include "bench/support/figures.h"
#include "bench/support/ratio.h"

namespace {

using bench::SceneKind;
using Pixels = std::vector<std::uint32_t>;

constexpr int kCopies = 100;

struct Peer {
  SceneKind kind;
  const char* name;
  const char* program;
  double aim;
};
constexpr Peer kPeers[] = {
    {SceneKind::kPart, "Qt", "qt_scene", 1.0},    {SceneKind::kPart, "GTK", "gtk_scene", 1.0},
    {SceneKind::kFull, "Qt", "qt_scene", 0.8},    {SceneKind::kFull, "GTK", "gtk_scene", 0.8},
    {SceneKind::kBlur, "GTK", "gtk_scene", 0.06},
};

// In copies of a frame.
double most_copies(SceneKind kind) {
  return kind == SceneKind::kPart ? 2 : kind == SceneKind::kFull ? 5 : 10;
}

void require(bool is_so, const char* what) {
  if (is_so) return;
  std::fprintf(stderr, "wrong result: %s\n", what);
  std::exit(1);
}

Pixels pixels_of(const bench::LayerScene& scene) {
  Pixels pixels(std::size_t{bench::kSceneWidth} * bench::kSceneHeight);
  std::memcpy(pixels.data(), cairo_image_surface_get_data(scene.surface().get()),
              pixels.size() * sizeof(std::uint32_t));
  return pixels;
}

std::uint32_t pixel_at(const Pixels& pixels, int x, int y) {
  return pixels[static_cast<std::size_t>(y * bench::kSceneWidth + x)];
}

// The least of a pixel's colours.
std::uint32_t whiteness(std::uint32_t pixel) {
  return std::min({pixel & 255, pixel >> 8 & 255, pixel >> 16 & 255});
}

int white_pixels(const Pixels& pixels, int left, int top, int width, int height) {
  int count = 0;
  for (int y = top; y < top + height; ++y) {
    for (int x = left; x < left + width; ++x)
      count += whiteness(pixel_at(pixels, x, y)) > 160;
  }
  return count;
}

// The frames must have drawn what one whole picture shows, and that must be the scene.
void check(bench::LayerScene& scene, SceneKind kind) {
  const Pixels pixels = pixels_of(scene);
  const bench::ScenePicture artwork =
      bench::photograph(bench::kArtworkSide, bench::kArtworkSide, 2);
  const int top = static_cast<int>(std::lround(bench::artwork_top(bench::kSceneFrames - 1)));
  for (const int at : {0, 250, bench::kArtworkSide - 1})
    require(pixel_at(pixels, bench::kArtworkLeft + at, top + at) == artwork.at(at, at), "artwork");
  const bench::ScenePicture icon = bench::icon_picture(0);
  require(pixel_at(pixels, bench::icon_left(0) + 60, bench::icon_top(0) + 60) == icon.at(60, 60),
          "an icon");
  require(white_pixels(pixels, bench::kTitleLeft, bench::kTitleTop, 360, 52) > 500, "the title");
  require(white_pixels(pixels, bench::icon_left(0) + bench::kLabelIndent,
                       bench::icon_top(0) + bench::kLabelDrop, 60, 27) > 50,
          "a label");
  if (kind == SceneKind::kBlur)
    require(scene.blur_count() >= bench::kSceneFrames, "a blur in each frame");
  scene.draw_anew();
  require(pixels_of(scene) == pixels, "what changed is not what a whole picture shows");
}

double copy_seconds(const bench::LayerScene& scene) {
  Pixels copy(std::size_t{bench::kSceneWidth} * bench::kSceneHeight);
  std::vector<double> seconds;
  for (int i = 0; i < kCopies; ++i) {
    const double start = bench::core_seconds();
    std::memcpy(copy.data(), cairo_image_surface_get_data(scene.surface().get()),
                copy.size() * sizeof(std::uint32_t));
    bench::keep(copy[0]);
    seconds.push_back(bench::core_seconds() - start);
  }
  return bench::summary(seconds).median;
}

bench::SceneTimes measure(SceneKind kind, const std::string& picture) {
  bench::LayerScene scene(kind);
  const bench::SceneTimes times =
      bench::run_scene("Sonavue", kind, [&](int frame) { scene.draw(frame); });
  if (!picture.empty()) cairo_surface_write_to_png(scene.surface().get(), picture.c_str());
  check(scene, kind);
  const double copy = copy_seconds(scene);
  bench::note_figure("scene.copy_ms", copy * 1e3);
  bench::print_ratio((std::string(bench::name_of(kind)) + ": median frame / copy").c_str(),
                     times.median, copy, most_copies(kind));
  return times;
}

/// The median that the peer prints, in seconds; 0 when it prints none.
double seconds_of(const std::filesystem::path& program, SceneKind kind) {
  std::FILE* output = ::popen((program.string() + " " + bench::name_of(kind)).c_str(), "r");
  if (!output) return 0;
  double milliseconds = 0;
  if (std::fscanf(output, "%*[^:]: a frame takes %lf", &milliseconds) != 1) milliseconds = 0;
  ::pclose(output);
  return milliseconds / 1e3;
}

void compare(SceneKind kind, double seconds) {
  const std::filesystem::path here = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  for (const Peer& peer : kPeers) {
    const std::filesystem::path program = here / peer.program;
    if (peer.kind != kind || ::access(program.c_str(), X_OK) != 0) continue;
    const double theirs = seconds_of(program, kind);
    require(theirs > 0, peer.program);
    const std::string name = std::string(bench::name_of(kind)) + ": median frame / " + peer.name;
    bench::print_ratio(name.c_str(), seconds, theirs, peer.aim);
  }
}

}  // namespace

int main(int count, char** words) {
  if (count > 1) {
    const bench::SceneCommand command = bench::scene_command(count, words);
    if (!command.is_valid) {
      std::fprintf(stderr, "Usage: scene_bench [part|full|blur [PICTURE.png]]\n");
      return 2;
    }
    measure(command.kind, command.picture);
    return 0;
  }
  for (const SceneKind kind : {SceneKind::kPart, SceneKind::kFull, SceneKind::kBlur})
    compare(kind, measure(kind, {}).median);
}
