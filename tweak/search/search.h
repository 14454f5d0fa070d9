#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITextField.h"

namespace sonavue {

/// Runs the search, after every edit of the field: lists the songs whose title contains the text,
/// ignoring case, in the order of the list. An empty text lists all songs.
void textDidChange(SpringBoard self, UITextField field);

/// Call this when the songs have been listed again, since their titles may have changed.
void read_titles_again();

// The field's delegate.
void textFieldDidBeginEditing(SpringBoard self, UITextField field);
void textFieldDidEndEditing(SpringBoard self, UITextField field);
BOOL textFieldShouldReturn(SpringBoard self, UITextField field);

/// Hides the keyboard if it is up for the search field.
void end_search_typing();

}  // namespace sonavue
