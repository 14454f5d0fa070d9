#include "tweak/library/search.h"

#include "tweak/globals.h"

namespace sonavue {
namespace {

bool holds(MPMediaItem item, NSString lower_case_text) {
  const auto name = objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyTitle));
  if (name.length() == 0) return false;
  return name.lowercaseString().rangeOfString(lower_case_text).length != 0;
}

void list_all_songs() {
  isSearching = NO;
  tableView.reloadData();
}

}  // namespace

void textDidChange(SpringBoard, UITextField field) {
  result.removeAllObjects();
  if (field.text().length() == 0) {
    list_all_songs();
    return;
  }
  isSearching = YES;
  const NSString wanted = field.text().lowercaseString();
  for (const auto item : songItems.of<MPMediaItem>()) {
    if (holds(item, wanted)) result.addObject(item);
  }
  tableView.reloadData();
}

// The rows stay as they are until the first letter.
void textFieldDidBeginEditing(SpringBoard, UITextField) {
  isSearching = YES;
}

void textFieldDidEndEditing(SpringBoard, UITextField field) {
  if (field.text().length() == 0) list_all_songs();
}

BOOL textFieldShouldReturn(SpringBoard, UITextField field) {
  if (field.isFirstResponder()) field.resignFirstResponder();
  if (field.text().length() == 0) list_all_songs();
  return YES;
}

}  // namespace sonavue
