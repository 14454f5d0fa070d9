#include "host/uikit/drawing/exports.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSIndexPath.h"

// What UIKit adds to Foundation's index paths: names for the two positions in a table.

namespace host::uikit {
namespace {

enum Position : NSUInteger { kSection = 0, kRow = 1 };

NSIndexPath path_for_row(objc::Object, NSInteger row, NSInteger section) {
  const NSUInteger indexes[] = {static_cast<NSUInteger>(section), static_cast<NSUInteger>(row)};
  return NSIndexPath::indexPathWithIndexes(indexes, 2);
}

NSInteger row(NSIndexPath self) {
  return static_cast<NSInteger>(self.indexAtPosition(kRow));
}

NSInteger section(NSIndexPath self) {
  return static_cast<NSInteger>(self.indexAtPosition(kSection));
}

}  // namespace

void export_index_path() {
  const objc::Class cls = objc_getClass("NSIndexPath");
  objc::add_method<&path_for_row>(objc_getMetaClass("NSIndexPath"), "indexPathForRow:inSection:");
  objc::add_method<&row>(cls, "row");
  objc::add_method<&section>(cls, "section");
}

}  // namespace host::uikit
