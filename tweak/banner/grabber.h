#pragma once

namespace sonavue {

enum class Grabber {
  kDragging,  // while the banner hangs or is being dragged
  kDone,      // once it is fully open
};

/// Chooses the picture of the grabber.
void show_grabber(Grabber picture);

}  // namespace sonavue
