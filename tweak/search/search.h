#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITextField.h"

namespace sonavue {

/// The search, at every edit of the field: lists the songs whose title holds the text, whatever the
/// case, in the order of the list. An empty text lists all songs.
void textDidChange(SpringBoard self, UITextField field);

/// For when the songs have been listed anew: their titles may be others.
void read_titles_again();

// The field's delegate.
void textFieldDidBeginEditing(SpringBoard self, UITextField field);
void textFieldDidEndEditing(SpringBoard self, UITextField field);
BOOL textFieldShouldReturn(SpringBoard self, UITextField field);

/// Takes the keyboard away, if it is there for the search field.
void end_search_typing();

}  // namespace sonavue
