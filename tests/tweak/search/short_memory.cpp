#include "tests/tweak/search/short_memory.h"

#include <dlfcn.h>

#include <cstddef>
#include <string_view>

namespace host::test {
namespace {

struct Budget {
  bool is_short = false;
  std::string library;
  int left = 0;
  int refused = 0;
};
Budget budget;

bool is_refused(const void* caller) {
  Dl_info info;
  if (dladdr(caller, &info) == 0) return false;
  if (!std::string_view(info.dli_fname).ends_with(budget.library)) return false;
  if (budget.left-- > 0) return false;
  ++budget.refused;
  return true;
}

}  // namespace

ShortMemory::ShortMemory(std::string library, int times) {
  budget = {true, std::move(library), times, 0};
}

ShortMemory::~ShortMemory() {
  budget = {};
}

int ShortMemory::refused() const {
  return budget.refused;
}

// The libraries that this program loads bind to this function instead of the C library's.
extern "C" __attribute__((visibility("default"))) void* realloc(void* block, std::size_t size) {
  using Realloc = void* (*)(void*, std::size_t);
  static const auto real = reinterpret_cast<Realloc>(dlsym(RTLD_NEXT, "realloc"));
  if (budget.is_short && is_refused(__builtin_return_address(0))) return nullptr;
  return real(block, size);
}

}  // namespace host::test
