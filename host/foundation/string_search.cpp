#include "host/foundation/exports.h"
#include "host/runtime/class_family.h"
#include "platform/Foundation/NSString.h"

// Looking for a text that begins with a mark, which belongs to a letter before it, ends in an
// exception where the platform's strings only say that it is not there. Anybody may type one.

namespace host::foundation {
namespace {

objc::Imp original = nullptr;

NSRange range_of_string(NSString self, NSString wanted) {
  using Function = NSRange (*)(objc::Id, objc::Sel, objc::Id);
  const auto find = [&] {
    return reinterpret_cast<Function>(original)(self.id(), "rangeOfString:"_sel, wanted.id());
  };
  // No text at all is the caller's mistake, and stays one.
  if (!wanted) return find();
  try {
    return find();
  } catch (...) {
    return {NSNotFound, 0};
  }
}

}  // namespace

void export_string_search() {
  if (original) return;
  original = replace_in_family<&range_of_string>(objc_getClass("NSString"), "rangeOfString:");
}

}  // namespace host::foundation
