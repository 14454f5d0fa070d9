#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UITableView.h"

/// Data source and delegate of the table with the other songs of the current album. Stateless.
struct MusicsAlbum : objc::Own<MusicsAlbum, "MusicsAlbum", UITableView> {};

namespace sonavue {

void make_album_table_source();

/// Adds the table to `blurTable`. Its source is never released, since the table does not retain it.
void make_album_table();

}  // namespace sonavue
