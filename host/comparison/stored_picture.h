#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/screen/screen.h"

struct _cairo_surface;

namespace host::comparison {

/// The picture in a PNG file.
class StoredPicture {
 public:
  /// Holds nothing, with the reason in `problem`, when the file has no picture.
  static std::optional<StoredPicture> read(const std::string& file, std::string& problem);

  screen::Picture picture() const;

 private:
  struct Destroy {
    void operator()(_cairo_surface* surface) const;
  };

  explicit StoredPicture(_cairo_surface* surface) : surface_(surface) {}

  std::unique_ptr<_cairo_surface, Destroy> surface_;
};

}  // namespace host::comparison
