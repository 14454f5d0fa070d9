#include "host/quartzcore/layers/layer_changes.h"

namespace host::quartzcore {
namespace {

std::uint64_t changes = 1;

}  // namespace

std::uint64_t layer_changes() {
  return changes;
}
void note_layer_change() {
  ++changes;
}

}  // namespace host::quartzcore
