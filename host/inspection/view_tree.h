#pragma once

#include <string>
#include <vector>

#include "platform/UIKit/UIView.h"

namespace host::inspection {

/// One view of a tree.
struct TreeLine {
  int depth = 0;
  UIView view;
  /// Its class, its frame, and what differs from a view that is plainly visible: `hidden`,
  /// `alpha 0.5`, the classes of its gesture recognisers. The same view gives the same text in
  /// every run.
  std::string text;
};

/// Nil when the object is no view.
UIView as_view(objc::Object object);

/// A view and those below it, each followed by its own subviews from back to front. Trees that are
/// too deep or too large end early, with a line that says so.
std::vector<TreeLine> tree_of(UIView root);

/// The trees of all visible windows, back to front.
std::vector<TreeLine> tree_of_windows();

}  // namespace host::inspection
