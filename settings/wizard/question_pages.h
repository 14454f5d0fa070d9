#pragma once

#include "settings/pane/style_page.h"

namespace sonavue {

/// The pages that ask, in their order, as large as `bounds`; their controls are the target's. The
/// questions are in English in every language.
void add_question_pages(NSMutableArray pages, CGRect bounds, styleController target);

/// The pages that explain, likewise.
void add_tutorial_pages(NSMutableArray pages, CGRect bounds, styleController target);

}  // namespace sonavue
