#pragma once

#include "settings/pane/style_page.h"

namespace sonavue {

/// Appends the question pages, of the size of `bounds`. Their controls send actions to `target`.
/// The questions are always in English.
void add_question_pages(NSMutableArray pages, CGRect bounds, styleController target);

/// Appends the tutorial pages likewise.
void add_tutorial_pages(NSMutableArray pages, CGRect bounds, styleController target);

}  // namespace sonavue
