#include "host/media_player/exports.h"

#include "host/media_player/artwork.h"
#include "host/media_player/item_store.h"
#include "host/media_player/library_text.h"
#include "host/media_player/media_item.h"
#include "host/media_player/music_player_controller.h"
#include "host/media_player/query.h"
#include "objc/autorelease_pool.h"

namespace host::media_player {

void export_media_player() {
  const objc::AutoreleasePool pool;
  export_library_text();
  export_media_item();
  export_artwork();
  export_item_list();
  export_query();
  export_music_player_controller();
}

}  // namespace host::media_player
