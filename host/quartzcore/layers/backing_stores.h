#pragma once

#include <cstddef>
#include <functional>

#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

// Accounts for the pictures that layers have drawn of themselves.

/// The entry of one layer's picture. The list does not retain the layer: the entry ends with it.
class BackingStore {
 public:
  explicit BackingStore(CALayer layer) : layer_(layer) {}
  BackingStore(const BackingStore&) = delete;
  BackingStore& operator=(const BackingStore&) = delete;
  ~BackingStore() { forget(); }

  /// Records that the layer has drawn itself again, into a picture of `bytes` bytes.
  void note(std::size_t bytes);
  void forget();

 private:
  const CALayer layer_;
  bool is_listed_ = false;
};

/// The total size of all pictures in bytes.
std::size_t backing_store_bytes();

/// The layer that drew itself the longest time ago. There must be at least one backing store.
CALayer oldest_backing_store();
void for_each_backing_store(const std::function<void(CALayer)>& visit);
/// Treats that layer as the one that drew itself last.
void renew_oldest_backing_store();

}  // namespace host::quartzcore
