#pragma once

#include <string>
#include <vector>

#include "platform/UIKit/UIView.h"

namespace host::inspection {

/// One view of a tree.
struct TreeLine {
  int depth = 0;
  UIView view;
  /// The tree goes on from here, but is not listed.
  bool is_cut = false;
};

/// What can be seen of a view.
struct ViewFacts {
  std::string class_name;
  CGRect frame;
  CGRect on_screen;  ///< The smallest upright rectangle around it.
  bool clips = false;
  bool is_hidden = false;
  double alpha = 1;
  std::string gestures;  ///< The classes of its gesture recognisers.
  std::string text;      ///< Of a label.
};

/// Nil when the object is no view.
UIView as_view(objc::Object object);

/// A view and those below it, each followed by its own subviews from back to front. Trees that are
/// too deep or too large end early, with a line that says so.
std::vector<TreeLine> tree_of(UIView root);

/// The trees of all visible windows, back to front.
std::vector<TreeLine> tree_of_windows();

ViewFacts facts_of(UIView view);

/// The view's class, its frame, and what differs from a view that is plainly visible: `hidden`,
/// `alpha 0.5`, the classes of its gesture recognisers. The same view gives the same text in every
/// run.
std::string text_of(const TreeLine& line);

}  // namespace host::inspection
