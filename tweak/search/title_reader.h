#pragma once

#include "objc/own_class.h"
#include "objc/ref.h"
#include "platform/Foundation/NSTimer.h"

namespace sonavue {

/// Reads the songs' titles for the search while the search field is edited.
struct SVTitleReader : objc::Own<SVTitleReader, "SVTitleReader", NSObject> {};

/// Reads some titles at a time on the main loop: reading those of a large library at once would
/// stop the keyboard on its way up. A search that comes before the end reads the rest itself.
class TitleReader : public objc::Implementation<TitleReader, SVTitleReader> {
 public:
  using Implementation::Implementation;

  /// Reads the first titles, and the others later.
  void start();
  /// Keeps what has been read.
  void stop();

 private:
  friend void make_title_reader();
  void read_some(NSTimer);

  objc::Ref<NSTimer> timer_;
};

void make_title_reader();

/// Null if the class could not be made. Then the first search reads all titles.
TitleReader* title_reader();

}  // namespace sonavue
