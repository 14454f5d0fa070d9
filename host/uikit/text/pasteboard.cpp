#include "host/uikit/text/pasteboard.h"

#include "host/uikit/text/clipboard.h"

namespace host::uikit {

UIPasteboard Pasteboard::general(objc::Object) {
  // Never released: the clipboard outlives every object that copies to it.
  static const UIPasteboard shared = UIPasteboard::alloc().init();
  return shared;
}

NSString Pasteboard::string() const {
  const std::string text = clipboard().text();
  return text.empty() ? NSString() : NSString::stringWithUTF8String(text.c_str());
}

void Pasteboard::set_string(NSString text) {
  clipboard().set_text(text ? text.UTF8String() : "");
}

void export_pasteboard() {
  if (UIPasteboard::cls()) return;
  objc::ClassBuilder("UIPasteboard", "NSObject")
      .state<Pasteboard>()
      .class_method<&Pasteboard::general>("generalPasteboard")
      .method<&Pasteboard::string>("string")
      .method<&Pasteboard::set_string>("setString:")
      .finish();
}

}  // namespace host::uikit
