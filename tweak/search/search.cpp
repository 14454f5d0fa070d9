#include "tweak/search/search.h"

#include <new>

#include "tweak/Sonavue2.h"
#include "tweak/search/hits.h"
#include "tweak/search/title_index.h"

namespace sonavue {
namespace {

// Never destroyed: it lives as long as the process.
TitleIndex& index() {
  alignas(TitleIndex) static unsigned char place[sizeof(TitleIndex)];
  static TitleIndex* made = nullptr;
  if (!made) made = new (place) TitleIndex;
  return *made;
}

void search_by_platform(NSString lower_case_text) {
  for (const auto song : songItems.of<MPMediaItem>()) {
    if (title_contains(song, lower_case_text)) result.addObject(song);
  }
}

void search(NSString lower_case_text) {
  if (!result) return;
  Hits& hits = hits_of(result);
  index().follow(songItems);
  if (index().find(lower_case_text, hits.places())) {
    hits.show(index().songs());
  } else {
    search_by_platform(lower_case_text);
  }
}

void list_all_songs() {
  isSearching = NO;
  tableView.reloadData();
}

}  // namespace

void read_titles_again() {
  index().forget();
}

void end_search_typing() {
  if (searchBar.isFirstResponder()) searchBar.resignFirstResponder();
}

void textDidChange(SpringBoard, UITextField field) {
  result.removeAllObjects();
  if (field.text().length() == 0) {
    list_all_songs();
    return;
  }
  isSearching = YES;
  search(field.text().lowercaseString());
  tableView.reloadData();
}

// The rows stay until the first letter is typed. By then the titles have already been read.
void textFieldDidBeginEditing(SpringBoard, UITextField) {
  isSearching = YES;
  index().follow(songItems);
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
