#pragma once

#include <vector>

#include "host/uikit/scroll_physics/row_layout.h"
#include "objc/ref.h"
#include "platform/Foundation/NSIndexPath.h"

namespace host::uikit {

/// The index paths of rows. Who measures a table asks for all of them, with every reload anew, so
/// those of the first section are kept; to make one costs far more than to hand it out.
class RowPaths {
 public:
  /// Rows beyond this number are made anew each time. A kept one costs some seventy bytes, a small
  /// part of what its row's song takes.
  static constexpr long kMostKept = 2'000'000;

  /// Borrowed, or autoreleased.
  NSIndexPath path(RowPlace place);

 private:
  std::vector<objc::Ref<NSIndexPath>> first_section_;
};

/// The one of this process: paths of equal rows are the same for all tables.
RowPaths& row_paths();

}  // namespace host::uikit
