#pragma once

#include <vector>

#include "host/uikit/scroll_physics/row_layout.h"
#include "objc/ref.h"
#include "platform/Foundation/NSIndexPath.h"

namespace host::uikit {

/// The index paths of rows. Measuring a table asks for all of them, on every reload, so those of
/// the first section are cached: creating a path costs far more than returning it.
class RowPaths {
 public:
  /// Rows beyond this number are not cached. A cached path takes some seventy bytes, a small part
  /// of what the row's song takes.
  static constexpr long kMostKept = 2'000'000;

  /// Returns a cached or an autoreleased path; the caller does not own it.
  NSIndexPath path(RowPlace place);

 private:
  std::vector<objc::Ref<NSIndexPath>> first_section_;
};

/// Returns the cache of this process: all tables share the paths of equal rows.
RowPaths& row_paths();

}  // namespace host::uikit
