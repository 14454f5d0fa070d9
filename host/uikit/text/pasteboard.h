#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UIPasteboard.h"

namespace host::uikit {

/// The platform's interface to the clipboard: the one general pasteboard.
class Pasteboard : public objc::Implementation<Pasteboard, UIPasteboard> {
 public:
  explicit Pasteboard(UIPasteboard owner) : Implementation(owner) {}

  static UIPasteboard general(objc::Object cls);
  NSString string() const;
  void set_string(NSString text);
};

void export_pasteboard();

}  // namespace host::uikit
