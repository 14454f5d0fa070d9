#pragma once

#include "platform/SpringBoard/SpringBoard.h"

// The first page: artwork with the backdrop for the current album's table, texts, controls.

namespace sonavue {

void make_artwork(SpringBoard self);
void make_texts();
void make_transport(SpringBoard self);

}  // namespace sonavue
