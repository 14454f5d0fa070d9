#include "host/media_player/shelf.h"

namespace host::media_player {

NSString Shelf::shared_text(std::string_view text) {
  if (text.empty()) return nil;
  objc::Ref<NSString>& known = texts_[text.data()];
  if (!known) known = objc::Ref<NSString>::adopt(make_string(text));
  return known.get();
}

NSString make_string(std::string_view text) {
  constexpr unsigned utf8 = 4;  // This Foundation's encodings are shorter than the platform's.
  const void* bytes = text.data();
  return objc::send<NSString>(NSString::alloc(), "initWithBytes:length:encoding:"_sel, bytes,
                              static_cast<NSUInteger>(text.size()), utf8);
}

}  // namespace host::media_player
