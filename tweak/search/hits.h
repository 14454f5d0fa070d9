#pragma once

#include "objc/ref.h"
#include "tweak/Sonavue2.h"
#include "tweak/search/title_index.h"

namespace sonavue {

/// What a search has found: a changeable array that knows the songs by their places in the list
/// that was searched, and keeps that list. One letter finds most of a library, and to retain and
/// release each song of it with every key would take longer than the search. Whoever changes the
/// array makes an ordinary one of it.
class Hits : public objc::Implementation<Hits, SVHits> {
 public:
  using Implementation::Implementation;

  /// Holds the songs of these places of a list that never changes.
  void show(NSArray songs);
  /// To be filled before the songs are shown.
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
