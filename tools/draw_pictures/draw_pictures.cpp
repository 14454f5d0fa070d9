// draw_pictures LIST renders SVG files as PNG, all in one process, because most take less time than
// starting a process. Each line of the list has four fields, separated by tabs: the SVG file, the
// width and the height in pixels, the PNG file. A picture of the right size that is not older than
// its SVG file is skipped.

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

// The default of `rsvg-convert`.
constexpr double kDotsPerInch = 96;

struct Picture {
  std::string drawing;
  int width = 0;
  int height = 0;
  std::string png;
};

template <class T, void (*Release)(T*)>
struct Releaser {
  void operator()(T* object) const { Release(object); }
};
template <class T, void (*Release)(T*)>
using Owned = std::unique_ptr<T, Releaser<T, Release>>;

void unref_handle(RsvgHandle* handle) {
  g_object_unref(handle);
}
void unref_file(GFile* file) {
  g_object_unref(file);
}

using Drawing = Owned<RsvgHandle, &unref_handle>;
using File = Owned<GFile, &unref_file>;
using Surface = Owned<cairo_surface_t, &cairo_surface_destroy>;
using Canvas = Owned<cairo_t, &cairo_destroy>;
using Error = Owned<GError, &g_error_free>;

bool complain(const std::string& path, const char* reason) {
  std::fprintf(stderr, "%s: %s\n", path.c_str(), reason);
  return false;
}

bool read_number(std::string_view text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number > 0;
}

bool read_line(const std::string& line, Picture& picture) {
  std::array<std::string, 4> fields;
  std::size_t begin = 0;
  for (std::string& field : fields) {
    if (begin > line.size()) return false;
    const std::size_t end = std::min(line.find('\t', begin), line.size());
    field = line.substr(begin, end - begin);
    begin = end + 1;
  }
  picture.drawing = fields[0];
  picture.png = fields[3];
  return begin > line.size() && read_number(fields[1], picture.width) &&
         read_number(fields[2], picture.height);
}

/// True if the header of the PNG file has this width and height.
bool has_size(const std::string& png, int width, int height) {
  std::array<unsigned char, 24> head{};
  std::ifstream file(png, std::ios::binary);
  if (!file.read(reinterpret_cast<char*>(head.data()), head.size())) return false;
  const auto number_at = [&](std::size_t at) {
    return head[at] << 24 | head[at + 1] << 16 | head[at + 2] << 8 | head[at + 3];
  };
  return number_at(16) == width && number_at(20) == height;
}

bool is_drawn(const Picture& picture) {
  std::error_code error;
  const auto drawn = fs::last_write_time(picture.png, error);
  if (error) return false;
  const auto changed = fs::last_write_time(picture.drawing, error);
  return !error && drawn >= changed && has_size(picture.png, picture.width, picture.height);
}

Drawing load(const std::string& path) {
  const File file(g_file_new_for_path(path.c_str()));
  GError* failure = nullptr;
  Drawing drawing(
      rsvg_handle_new_from_gfile_sync(file.get(), RSVG_HANDLE_FLAGS_NONE, nullptr, &failure));
  const Error error(failure);
  if (!drawing) {
    complain(path, error->message);
  } else {
    rsvg_handle_set_dpi(drawing.get(), kDotsPerInch);
  }
  return drawing;
}

bool draw(RsvgHandle* drawing, const Picture& picture) {
  gboolean has_box = FALSE;
  RsvgRectangle box{};
  rsvg_handle_get_intrinsic_dimensions(drawing, nullptr, nullptr, nullptr, nullptr, &has_box, &box);
  if (!has_box) return complain(picture.drawing, "has no view box");
  const Surface surface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, picture.width, picture.height));
  const Canvas canvas(cairo_create(surface.get()));
  cairo_scale(canvas.get(), picture.width / box.width, picture.height / box.height);
  const RsvgRectangle whole{0, 0, box.width, box.height};
  GError* failure = nullptr;
  const bool drawn = rsvg_handle_render_document(drawing, canvas.get(), &whole, &failure);
  const Error error(failure);
  if (!drawn) return complain(picture.drawing, error->message);
  const cairo_status_t status = cairo_surface_write_to_png(surface.get(), picture.png.c_str());
  return status == CAIRO_STATUS_SUCCESS || complain(picture.png, cairo_status_to_string(status));
}

bool draw_all(std::istream& list) {
  Drawing drawing;
  std::string loaded;
  Picture picture;
  for (std::string line; std::getline(list, line);) {
    if (!read_line(line, picture)) return complain(line, "is not a valid line of a picture list");
    if (is_drawn(picture)) continue;
    if (loaded != picture.drawing) drawing = load(loaded = picture.drawing);
    if (!drawing || !draw(drawing.get(), picture)) return false;
  }
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("Usage: draw_pictures LIST\n", stderr);
    return 2;
  }
  std::ifstream list(arguments[1]);
  if (!list) return complain(arguments[1], "cannot be read"), 1;
  return draw_all(list) ? 0 : 1;
}
