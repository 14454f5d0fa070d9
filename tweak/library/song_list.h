#pragma once

#include "objc/own_class.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITableView.h"

/// Data source and delegate of the list of all songs. It holds no state: a new one is as good.
struct Musicz : objc::Own<Musicz, "Musicz", UITableView> {
  void didSelectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    call<"tableView:didSelectRowAtIndexPath:">(table, path);
  }
};

namespace sonavue {

void make_song_list_source();

/// Makes the list of all songs on the pages, with the search field above its first row. The list
/// has a source that nothing keeps and that is never released.
void make_song_list(SpringBoard self);

}  // namespace sonavue
