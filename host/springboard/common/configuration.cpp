#include "host/springboard/common/configuration.h"

#include <utility>

namespace host::springboard {
namespace {

Configuration current;

}  // namespace

void configure(Configuration configuration) {
  current = std::move(configuration);
}

const Configuration& configuration() {
  return current;
}

}  // namespace host::springboard
