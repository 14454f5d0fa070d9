#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBBannerController.h"

namespace host::springboard {

/// Which banner was asked for last. Nothing of it is drawn yet.
class BannerController : public objc::Implementation<BannerController, SBBannerController> {
 public:
  using Implementation::Implementation;

  /// A nil context takes the banner away.
  void present_banner(objc::Object context, NSInteger) { context_.reset(context); }
  BOOL is_showing_banner() const { return context_ ? YES : NO; }

 private:
  objc::Ref<objc::Object> context_;
};

void export_banner_controller();

}  // namespace host::springboard
