#include "tweak/search/hits.h"

namespace sonavue {

void Hits::show(NSArray songs) {
  ordinary_.reset();
  songs_.reset(songs);
}

void Hits::remove_all_objects() {
  ordinary_.reset();
  songs_.reset();
  places_.clear();
}

// For an index beyond the end, the ordinary array raises the usual exception.
objc::Object Hits::object_at_index(NSUInteger index) {
  if (ordinary_ || index >= shown()) return ordinary().objectAtIndex(index);
  return songs_->objectAtIndex(places_[index]);
}

NSMutableArray Hits::ordinary() {
  if (ordinary_) return ordinary_.get();
  auto made = objc::Ref<NSMutableArray>::adopt(NSMutableArray::alloc().init());
  for (NSUInteger index = 0; index < shown(); ++index)
    made->addObject(songs_->objectAtIndex(places_[index]));
  songs_.reset();
  ordinary_ = made;
  return ordinary_.get();
}

void make_hits() {
  objc::make_own_class<SVHits>([](objc::ClassBuilder& builder) {
    builder.state<Hits>()
        .method<&Hits::init>("init")
        .method<&Hits::count>("count")
        .method<&Hits::object_at_index>("objectAtIndex:")
        .method<&Hits::add_object>("addObject:")
        .method<&Hits::insert_object>("insertObject:atIndex:")
        .method<&Hits::replace_object>("replaceObjectAtIndex:withObject:")
        .method<&Hits::remove_object>("removeObjectAtIndex:")
        .method<&Hits::remove_last_object>("removeLastObject")
        .method<&Hits::remove_all_objects>("removeAllObjects")
        .method<&Hits::copy_with_zone>("copyWithZone:");
  });
}

}  // namespace sonavue
