#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Adds the search field to `searchCont`. Its delegate is the home screen.
void make_search_field(SpringBoard self);

}  // namespace sonavue
