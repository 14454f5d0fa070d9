#pragma once

#include "objc/class_builder.h"

namespace host::quartzcore {

// The messages of CALayer. Each function adds those of one subject to the class.

/// A layer's own properties.
void add_model_messages(objc::ClassBuilder& builder);
void add_tree_messages(objc::ClassBuilder& builder);
/// Conversion between the coordinates of layers, and hit testing.
void add_geometry_messages(objc::ClassBuilder& builder);
/// Display and layout.
void add_display_messages(objc::ClassBuilder& builder);
void add_animation_messages(objc::ClassBuilder& builder);
/// Values by key path.
void add_key_messages(objc::ClassBuilder& builder);

}  // namespace host::quartzcore
