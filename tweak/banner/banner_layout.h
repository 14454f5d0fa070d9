#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

// Where the texts and the transport stand in the banner's forms.

namespace sonavue {

/// How much of the window hangs down as the banner: for what it shows besides the controls, and
/// shortened where a small screen needs it.
CGFloat banner_height(bool with_texts, bool shortened);

/// What everything below the texts is moved by while they are hidden.
CGFloat lift_without_texts();

/// The layout of the open panel: texts below the artwork, transport below the texts.
void stand_below_artwork();

/// The layout of the hanging banner: everything at the bottom of the pages.
void stand_at_bottom();

/// Keeps the places from which the controls rise while the banner is pulled down, and sink while
/// pages are turned.
void keep_resting_places();

/// How often that was done.
unsigned times_resting_places_were_kept();

/// The controls rise against the window that was pulled down by `distance`; each stops below the
/// one above it.
void rise_against(CGFloat distance);

}  // namespace sonavue
