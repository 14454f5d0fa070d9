#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"
#include "platform/UIKit/_UIBackdropViewSettings.h"

// The steps of the panel's construction. Each uses the views of the steps before it.

namespace sonavue {

void make_windows();
void make_backdrop();
void make_icon_twin(SpringBoard self);
void make_pages();
void make_artwork(SpringBoard self);
void make_texts();
void make_transport(SpringBoard self);
void make_closing_gestures(SpringBoard self);
void make_album_table();
void make_library();
void make_song_list(SpringBoard self);
void make_grabber(SpringBoard self);
void make_album_strip(SpringBoard self);
void make_page_scrolling();

/// The blur that the panel is built with, until the chosen one is applied.
_UIBackdropViewSettings initial_blur();

/// A picture that is drawn in the tint colour of its view.
UIImage template_image(NSString path);

/// The word in the empty search field.
void set_placeholder(UIColor colour);

/// A plain view of one point's height that edges a list.
UIView make_line(CGRect frame);

}  // namespace sonavue
