#include <cairo.h>
#include <fmt/core.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

// compare_pictures DIFFERENCES EXPECTED ACTUAL compares the pictures in two folders, pixel by
// pixel, and says what it finds, a line each. A pixel may differ where the file DIFFERENCES says so
// and by no more than it says. Ends with 0 when all is as it may be, with 1 when not, with 2 when
// that could not be found out.

namespace {

namespace fs = std::filesystem;

struct Difference {
  std::string picture;
  int x, y, width, height;
  int levels;

  bool allows(const std::string& name, int at_x, int at_y, int by) const {
    return name == picture && by <= levels && at_x >= x && at_x < x + width && at_y >= y &&
           at_y < y + height;
  }
};

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

struct Picture {
  explicit Picture(const fs::path& file)
      : surface(cairo_image_surface_create_from_png(file.c_str()), &cairo_surface_destroy),
        width(cairo_image_surface_get_width(surface.get())),
        height(cairo_image_surface_get_height(surface.get())) {
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS || width == 0 || height == 0)
      throw std::runtime_error(file.string() + " is no picture");
  }

  const std::uint8_t* pixel(int x, int y) const {
    return cairo_image_surface_get_data(surface.get()) +
           static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface.get()) + x * 4;
  }

  Surface surface;
  int width, height;
};

/// The pixels of a picture that differ, and those of them that must not.
struct Found {
  long pixels = 0;
  long refused = 0;
  int levels = 0;
  int left = 0, top = 0, right = 0, bottom = 0;

  void add(int x, int y, int by, bool is_allowed) {
    if (pixels++ == 0) {
      left = right = x;
      top = bottom = y;
    }
    refused += !is_allowed;
    levels = std::max(levels, by);
    left = std::min(left, x);
    right = std::max(right, x);
    bottom = std::max(bottom, y);
  }
};

std::vector<Difference> read_differences(const fs::path& file) {
  std::ifstream stream(file);
  if (!stream) throw std::runtime_error(file.string() + " cannot be read");
  std::vector<Difference> read;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream words(line.substr(0, line.find('#')));
    Difference row{};
    if (!(words >> row.picture)) continue;
    if (!(words >> row.x >> row.y >> row.width >> row.height >> row.levels))
      throw std::runtime_error(file.string() + " has a line that says too little: " + line);
    read.push_back(row);
  }
  return read;
}

std::set<std::string> pictures_in(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& each : fs::directory_iterator(folder))
    names.insert(each.path().filename().string());
  return names;
}

int levels_between(const std::uint8_t* one, const std::uint8_t* other) {
  int most = 0;
  for (int i = 0; i < 4; ++i)
    most = std::max(most, std::abs(one[i] - other[i]));
  return most;
}

Found compare(const Picture& expected, const Picture& actual, const std::string& name,
              const std::vector<Difference>& differences) {
  Found found;
  for (int y = 0; y < expected.height; ++y) {
    for (int x = 0; x < expected.width; ++x) {
      const int by = levels_between(expected.pixel(x, y), actual.pixel(x, y));
      if (by == 0) continue;
      const bool is_allowed =
          std::any_of(differences.begin(), differences.end(),
                      [&](const Difference& each) { return each.allows(name, x, y, by); });
      found.add(x, y, by, is_allowed);
    }
  }
  return found;
}

bool is_as_expected(const fs::path& expected_file, const fs::path& actual_file,
                    const std::vector<Difference>& differences) {
  const std::string name = expected_file.filename().string();
  const Picture expected(expected_file);
  const Picture actual(actual_file);
  if (expected.width != actual.width || expected.height != actual.height) {
    fmt::print("{}: is of another size\n", name);
    return false;
  }
  const Found found = compare(expected, actual, name, differences);
  if (found.pixels == 0) {
    fmt::print("{}: equal\n", name);
    return true;
  }
  fmt::print("{}: {} pixels differ by up to {} levels, within {} {} {} {}; {} of them must not\n",
             name, found.pixels, found.levels, found.left, found.top, found.right - found.left + 1,
             found.bottom - found.top + 1, found.refused);
  return found.refused == 0;
}

}  // namespace

int main(int count, char** arguments) {
  constexpr int kCannotTell = 2;
  try {
    if (count != 4) throw std::runtime_error("Usage: compare_pictures DIFFERENCES EXPECTED ACTUAL");
    const auto differences = read_differences(arguments[1]);
    const fs::path expected = arguments[2];
    const fs::path actual = arguments[3];
    const auto names = pictures_in(expected);
    bool is_right = !names.empty() && names == pictures_in(actual);
    if (!is_right) fmt::print("there are no pictures, or not the same ones\n");
    for (const std::string& name : names)
      if (fs::exists(actual / name))
        is_right = is_as_expected(expected / name, actual / name, differences) && is_right;
    return is_right ? 0 : 1;
  } catch (const std::exception& problem) {
    fmt::print(stderr, "{}\n", problem.what());
    return kCannotTell;
  }
}
