#include "host/springboard/common/shared_instance.h"

#include <vector>

namespace host::springboard {
namespace {

std::vector<SharedInstances::Forget>& remembered() {
  static std::vector<SharedInstances::Forget> all;
  return all;
}

}  // namespace

void SharedInstances::remember(Forget forget) {
  remembered().push_back(forget);
}

void SharedInstances::forget_all() {
  while (!remembered().empty()) {
    const Forget forget = remembered().back();
    remembered().pop_back();
    forget();
  }
}

}  // namespace host::springboard
