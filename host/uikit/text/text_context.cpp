#include "host/uikit/text/text_context.h"

#include "host/uikit/view/responder.h"

namespace host::uikit {

NSString text_before_caret() {
  const UIResponder taker = first_responder();
  if (taker.respondsToSelector("_textBeforeCaret"_sel))
    return objc::send<NSString>(taker, "_textBeforeCaret"_sel);
  const bool is_empty =
      taker.respondsToSelector("hasText"_sel) && !objc::send<BOOL>(taker, "hasText"_sel);
  return is_empty ? ""_ns : NSString();
}

}  // namespace host::uikit
