#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// The device's generation, from the last three characters of its machine name: 7 for iPhone7,2.
/// Of a two-digit generation it returns the last digit, for a name with another ending 0.
int deviceNumber(SpringBoard self);

/// Sets `time_wait` and `max` for this device. Slower generations take longer to change a song.
void measure_device(SpringBoard self);

}  // namespace sonavue
