#pragma once

#include "objc/own_class.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITableView.h"

/// Data source and delegate of the list of all songs. Stateless, so any instance will do.
struct Musicz : objc::Own<Musicz, "Musicz", UITableView> {
  void didSelectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    call<"tableView:didSelectRowAtIndexPath:">(table, path);
  }
};

namespace sonavue {

void make_song_list_source();

/// Adds the list of all songs to the pages, with the search field above its first row. The list's
/// source is never released, since the list does not retain it.
void make_song_list(SpringBoard self);

}  // namespace sonavue
