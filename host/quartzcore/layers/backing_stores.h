#pragma once

#include <cstddef>

#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

// The pictures that layers have drawn of themselves.

/// A layer's own picture among them. Not retained: it leaves with the layer.
class BackingStore {
 public:
  explicit BackingStore(CALayer layer) : layer_(layer) {}
  BackingStore(const BackingStore&) = delete;
  BackingStore& operator=(const BackingStore&) = delete;
  ~BackingStore() { forget(); }

  /// The layer has drawn itself anew.
  void note(std::size_t bytes);
  void forget();

 private:
  const CALayer layer_;
  bool is_listed_ = false;
};

/// Bytes of all of them.
std::size_t backing_store_bytes();

/// The layer that drew itself first; there must be one.
CALayer oldest_backing_store();
/// Lets that layer count as the one that drew itself last.
void renew_oldest_backing_store();

}  // namespace host::quartzcore
