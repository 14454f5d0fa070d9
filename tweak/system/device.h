#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// The device's generation, from the last three characters of its machine name: 7 of iPhone7,2.
/// A major number of two digits gives its last digit; a name that ends otherwise gives 0.
int deviceNumber(SpringBoard self);

/// Sets `time_wait` and `max` for this device. Slower generations take longer to change a song.
void measure_device(SpringBoard self);

}  // namespace sonavue
