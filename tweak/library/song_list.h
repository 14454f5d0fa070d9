#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UITableView.h"

/// Data source and delegate of the list of all songs. It holds no state: a fresh one is as good.
struct Musicz : objc::Own<Musicz, "Musicz", UITableView> {
  void didSelectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    call<"tableView:didSelectRowAtIndexPath:">(table, path);
  }
};

namespace sonavue {

void make_song_list_source();

}  // namespace sonavue
