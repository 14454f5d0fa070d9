#pragma once

namespace host::quartzcore {

/// The pixels that the screen has for each pixel of the device: 1, or less where the desktop shows
/// the phone at a smaller size. Layers draw themselves with that many pixels, so that text is sharp
/// at any size. Programs of the phone are not told: the scale of their screen stays the device's.
double screen_density();

/// Layers that have drawn themselves draw again when they are next in sight.
void set_screen_density(double density);

}  // namespace host::quartzcore
