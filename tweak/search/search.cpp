#include "tweak/search/search.h"

#include "tweak/Sonavue2.h"
#include "tweak/search/hits.h"
#include "tweak/search/title_index.h"
#include "tweak/search/title_reader.h"

namespace sonavue {
namespace {

void search_by_platform(NSString lower_case_text) {
  for (const auto song : songItems.of<MPMediaItem>()) {
    if (title_contains(song, lower_case_text)) result.addObject(song);
  }
}

void search(NSString lower_case_text) {
  if (!result) return;
  Hits& hits = hits_of(result);
  TitleIndex& index = title_index();
  index.follow(songItems);
  if (index.find(lower_case_text, hits.places())) {
    hits.show(index.songs());
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
  title_index().forget();
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

// The rows stay until the first letter is typed. By then the titles have usually been read.
void textFieldDidBeginEditing(SpringBoard, UITextField) {
  isSearching = YES;
  if (TitleReader* reader = title_reader()) reader->start();
}

void textFieldDidEndEditing(SpringBoard, UITextField field) {
  if (TitleReader* reader = title_reader()) reader->stop();
  if (field.text().length() == 0) list_all_songs();
}

BOOL textFieldShouldReturn(SpringBoard, UITextField field) {
  if (field.isFirstResponder()) field.resignFirstResponder();
  if (field.text().length() == 0) list_all_songs();
  return YES;
}

}  // namespace sonavue
