#pragma once

#include "objc/ref.h"
#include "tweak/Sonavue2.h"
#include "tweak/search/title_index.h"

namespace sonavue {

/// The hits of a search: a mutable array that stores the places of the songs in the searched list,
/// and retains that list. A single letter finds most of a library; retaining and releasing all
/// these songs at every keystroke would take longer than the search. Changing the array turns it
/// into an ordinary one.
class Hits : public objc::Implementation<Hits, SVHits> {
 public:
  using Implementation::Implementation;

  /// Makes the array contain the songs at `places` in this list. The list must be immutable.
  void show(NSArray songs);
  /// Fill these before calling `show`.
  Places& places() { return places_; }

  SVHits init() { return self; }
  NSUInteger count() const { return ordinary_ ? ordinary_->count() : shown(); }
  objc::Object object_at_index(NSUInteger index);
  void add_object(objc::Object object) { ordinary().addObject(object); }
  void insert_object(objc::Object object, NSUInteger index) {
    ordinary().insertObject(object, index);
  }
  void replace_object(NSUInteger index, objc::Object object) {
    ordinary().replaceObjectAtIndex(index, object);
  }
  void remove_object(NSUInteger index) { ordinary().removeObjectAtIndex(index); }
  void remove_last_object() { ordinary().removeLastObject(); }
  void remove_all_objects();
  objc::Object copy_with_zone(void*) { return NSArray::alloc().initWithArray(ordinary()); }

 private:
  NSUInteger shown() const { return songs_ ? places_.count() : 0; }
  NSMutableArray ordinary();

  Places places_;
  objc::Ref<NSArray> songs_;
  objc::Ref<NSMutableArray> ordinary_;
};

void make_hits();

inline Hits& hits_of(SVHits array) {
  return objc::state_of<Hits>(array);
}

}  // namespace sonavue
