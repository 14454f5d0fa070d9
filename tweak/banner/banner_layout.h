#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

// The positions of the texts and the transport controls in the banner's layouts.

namespace sonavue {

/// The visible height of the banner in points: with or without the texts, and `shortened` where a
/// small screen needs it.
CGFloat banner_height(bool with_texts, bool shortened);

/// The vertical offset of the controls below the texts: negative while the texts are hidden,
/// otherwise 0.
CGFloat lift_without_texts();

/// The layout of the open panel: texts below the artwork, controls below the texts.
void lay_out_below_artwork();

/// The layout of the hanging banner: everything at the bottom of the pages.
void lay_out_at_bottom();

/// Saves the positions from which the controls rise while the banner is pulled down, and sink while
/// pages are turned.
void save_resting_positions();

/// How often they have been saved, to detect that they have changed.
unsigned resting_positions_save_count();

/// Raises the controls within the window, which has been pulled down by `distance`. Each stops
/// below the one above it.
void rise_against(CGFloat distance);

}  // namespace sonavue
