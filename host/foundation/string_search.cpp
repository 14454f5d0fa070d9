#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "host/foundation/canonical_search.h"
#include "host/foundation/exports.h"
#include "host/runtime/class_family.h"
#include "platform/Foundation/NSString.h"

// On the platform a text is found however its letters are encoded. The desktop's Foundation
// distinguishes the composed and decomposed forms of a letter, and throws for a text that begins
// with a mark.

namespace host::foundation {
namespace {

objc::Imp original_search = nullptr;

std::u16string units_of(NSString text) {
  static_assert(sizeof(unichar) == sizeof(char16_t));
  std::u16string units(text.length(), u'\0');
  text.getCharacters(reinterpret_cast<unichar*>(units.data()), {0, units.size()});
  return units;
}

std::optional<Stretch> find(std::u16string_view text, std::u16string_view wanted) {
  const bool units_decide =
      std::ranges::all_of(wanted, is_plain_letter) && std::ranges::all_of(text, is_plain_letter);
  if (!units_decide) return find_canonical(text, wanted);
  const std::size_t place = text.find(wanted);
  if (place == text.npos) return std::nullopt;
  return Stretch{place, wanted.size()};
}

NSRange range_of_string(NSString self, NSString wanted) {
  // A nil or empty text is the caller's error, which Foundation handles.
  if (!wanted || wanted.length() == 0) {
    using Function = NSRange (*)(objc::Id, objc::Sel, objc::Id);
    return reinterpret_cast<Function>(original_search)(self.id(), "rangeOfString:"_sel,
                                                       wanted.id());
  }
  const auto found = find(units_of(self), units_of(wanted));
  return found ? NSRange{found->location, found->length} : NSRange{NSNotFound, 0};
}

}  // namespace

void export_string_search() {
  if (original_search) return;
  original_search =
      replace_in_family<&range_of_string>(objc_getClass("NSString"), "rangeOfString:");
}

}  // namespace host::foundation
