#include <algorithm>
#include <map>

#include "host/preferences/list_controller.h"

// Rows that come and go while the page is shown.

namespace host::preferences {
namespace {

constexpr double kDuration = 0.3;

/// Where the rows were, by specifier.
using Places = std::map<objc::Id, CGRect>;

Places places_of(UITableView table) {
  Places places;
  for (const PSTableCell cell : table.visibleCells().of<PSTableCell>())
    places.emplace(cell.specifier().id(), cell.frame());
  return places;
}

/// Rows that were there move to their places, new ones fade in.
void slide_from(const Places& before, UITableView table) {
  table.layoutIfNeeded();
  for (const PSTableCell cell : table.visibleCells().of<PSTableCell>()) {
    const auto was = before.find(cell.specifier().id());
    const CGRect place = cell.frame();
    if (was == before.end()) {
      cell.setAlpha(0);
    } else {
      cell.setFrame(was->second);
    }
    const auto kept = objc::Ref<PSTableCell>::retain(cell);
    UIView::animateWithDuration(kDuration, objc::block([kept, place] {
                                  kept->setAlpha(1);
                                  kept->setFrame(place);
                                }));
  }
}

NSArray one(PSSpecifier specifier) {
  return specifier ? NSArray::arrayWithObject(specifier) : NSArray::array();
}

}  // namespace

void ListController::change_rows(NSArray specifiers, BOOL animated) {
  const bool slides = animated && table_ && self.view().window();
  const Places before = slides ? places_of(table_.get()) : Places();
  set_specifiers(specifiers);
  if (slides) slide_from(before, table_.get());
}

void ListController::insert_at(PSSpecifier specifier, NSInteger index, BOOL animated) {
  if (!specifier) return;
  const auto rows = NSMutableArray::arrayWithArray(self.specifiers());
  const auto last = static_cast<NSInteger>(rows.count());
  rows.insertObject(specifier, static_cast<NSUInteger>(std::clamp<NSInteger>(index, 0, last)));
  change_rows(rows, animated);
}

void ListController::insert_all_after(NSArray specifiers, PSSpecifier before, BOOL animated) {
  if (!specifiers || !self.specifiers()) return;
  const auto rows = NSMutableArray::arrayWithArray(self.specifiers());
  const NSUInteger place = rows.indexOfObjectIdenticalTo(before);
  NSUInteger next = place == NSNotFound ? rows.count() : place + 1;
  for (const PSSpecifier specifier : specifiers.of<PSSpecifier>())
    rows.insertObject(specifier, next++);
  change_rows(rows, animated);
}

void ListController::insert_all_after_id(NSArray specifiers, NSString identifier, BOOL animated) {
  insert_all_after(specifiers, specifier_for_id(identifier), animated);
}

void ListController::insert_after(PSSpecifier specifier, PSSpecifier before, BOOL animated) {
  insert_all_after(one(specifier), before, animated);
}

void ListController::insert_after_id(PSSpecifier specifier, NSString identifier, BOOL animated) {
  insert_after(specifier, specifier_for_id(identifier), animated);
}

void ListController::add(PSSpecifier specifier, BOOL animated) {
  insert_after(specifier, nil, animated);
}

void ListController::remove_all(NSArray specifiers, BOOL animated) {
  if (!specifiers || !self.specifiers()) return;
  const auto rows = NSMutableArray::arrayWithArray(self.specifiers());
  for (const PSSpecifier specifier : specifiers.of<PSSpecifier>())
    rows.removeObjectIdenticalTo(specifier);
  change_rows(rows, animated);
}

void ListController::remove(PSSpecifier specifier, BOOL animated) {
  remove_all(one(specifier), animated);
}

void ListController::remove_id(NSString identifier, BOOL animated) {
  remove(specifier_for_id(identifier), animated);
}

BOOL ListController::contains(PSSpecifier specifier) {
  const NSArray rows = self.specifiers();
  return rows && rows.indexOfObjectIdenticalTo(specifier) != NSNotFound ? YES : NO;
}

void ListController::reload_specifier_animated(PSSpecifier specifier, BOOL) {
  self.reloadSpecifier(specifier);
}

void ListController::reload_specifier_id(NSString identifier) {
  self.reloadSpecifier(specifier_for_id(identifier));
}

void ListController::reload_specifier_id_animated(NSString identifier, BOOL) {
  reload_specifier_id(identifier);
}

}  // namespace host::preferences
