#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UITableView.h"

/// Data source and delegate of the table of the current album's other songs. Stateless.
struct MusicsAlbum : objc::Own<MusicsAlbum, "MusicsAlbum", UITableView> {};

namespace sonavue {

void make_album_table_source();

/// Makes the table on `blurTable`, with a source that nothing keeps and that is never released.
void make_album_table();

}  // namespace sonavue
