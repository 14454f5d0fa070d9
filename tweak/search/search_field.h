#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Makes the search field inside `searchCont`, with the home screen as its delegate.
void make_search_field(SpringBoard self);

}  // namespace sonavue
