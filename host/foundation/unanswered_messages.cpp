#include "host/foundation/unanswered_messages.h"

#include <dlfcn.h>
#include <unwind.h>

#include <bit>
#include <mutex>
#include <set>
#include <string>

#include "host/foundation/loader.h"
#include "host/runtime/compiled_selector.h"
#include "host/runtime/log.h"

extern "C" {
// The runtime calls this for a message that nothing answers, and then what it returns.
extern objc::Imp (*__objc_msg_forward2)(objc::Id receiver, objc::Sel selector);
signed char class_isMetaClass(objc::Class cls);
}

namespace host::foundation {
namespace {

using Forward = objc::Imp (*)(objc::Id receiver, objc::Sel selector);
Forward forward_before = nullptr;

/// The file whose code is at an address; nullptr for the program's own on some systems.
const char* file_at(const void* code) {
  Dl_info found;
  return dladdr(code, &found) ? found.dli_fname : nullptr;
}

/// Walks up the stack to the code that called the runtime.
struct SenderSearch {
  const char* runtime = file_at(reinterpret_cast<const void*>(&objc_msg_lookup));
  bool is_in_runtime = false;
  const void* sender = nullptr;

  static _Unwind_Reason_Code visit(_Unwind_Context* frame, void* pointer) {
    auto& search = *static_cast<SenderSearch*>(pointer);
    // The return address may be that of the next function.
    const void* code = std::bit_cast<const void*>(_Unwind_GetIP(frame) - 1);
    const bool is_runtime = file_at(code) == search.runtime;
    if (search.is_in_runtime && !is_runtime) {
      search.sender = code;
      return _URC_NORMAL_STOP;
    }
    search.is_in_runtime = is_runtime;
    return _URC_NO_REASON;
  }
};

/// Empty when the message was not sent by a loaded library.
std::string sender() {
  SenderSearch search;
  _Unwind_Backtrace(&SenderSearch::visit, &search);
  return library_with(search.sender);
}

bool is_first(const std::string& library, const std::string& selector) {
  static std::mutex mutex;
  static auto* const told = new std::set<std::pair<std::string, std::string>>;
  const std::lock_guard lock(mutex);
  return told->emplace(library, selector).second;
}

objc::Id do_nothing(objc::Id, objc::Sel) {
  return nullptr;
}

objc::Imp forward(objc::Id receiver, objc::Sel selector) {
  const std::string library = sender();
  if (const CompiledSelector* early = as_unregistered(selector)) {
    if (is_first(library, early->name)) {
      spdlog::error(
          "{} sends {} from a constructor, when the runtime does not know its selectors yet: "
          "nothing is done. Send it from +load instead",
          library.empty() ? "a library" : library, early->name);
    }
    return reinterpret_cast<objc::Imp>(&do_nothing);
  }
  if (!library.empty() && is_first(library, sel_getName(selector))) {
    const objc::Class cls = objc::class_of(receiver);
    spdlog::error("{} sent {}[{} {}], which this home screen does not have", library,
                  class_isMetaClass(cls) ? '+' : '-', class_getName(cls), sel_getName(selector));
  }
  return forward_before(receiver, selector);
}

}  // namespace

void report_unanswered_messages() {
  if (forward_before) return;
  forward_before = __objc_msg_forward2;
  __objc_msg_forward2 = &forward;
}

}  // namespace host::foundation
