#pragma once

#include "host/runtime/run_loop.h"
#include "host/uikit/backdrop/backdrop_settings.h"
#include "platform/UIKit/_UIBackdropView.h"

namespace host::uikit {

/// A view whose layer blurs and tints what is behind it.
class BackdropView : public objc::Implementation<BackdropView, _UIBackdropView> {
 public:
  explicit BackdropView(_UIBackdropView owner) : Implementation(owner) {}
  ~BackdropView() { stop_watching(); }

  static objc::Class layer_class(objc::Object cls);

  _UIBackdropView init_with_frame(CGRect frame);
  _UIBackdropView init_whole(CGRect frame, BOOL autosizes, _UIBackdropViewSettings settings);
  _UIBackdropView init_with_settings(_UIBackdropViewSettings settings);
  _UIBackdropView init_with_style(_UIBackdropViewStyle style);

  _UIBackdropViewStyle style() const { return style_; }
  void set_style(_UIBackdropViewStyle style);
  _UIBackdropViewSettings input_settings() const { return input_.get(); }
  void set_input_settings(_UIBackdropViewSettings settings);
  void apply_settings(_UIBackdropViewSettings settings);
  BOOL autosizes() const { return autosizes_; }
  void set_autosizes(BOOL autosizes);

  void did_move_to_superview();
  void did_move_to_window();

 private:
  void fill_superview();
  void watch_brightness();
  void stop_watching();
  void follow_brightness();
  void set_tint(const quartzcore::Rgba& tint);

  objc::Ref<_UIBackdropViewSettings> input_;
  _UIBackdropViewStyle style_ = 0;
  quartzcore::Rgba tint_;
  bool follows_brightness_ = false;
  double followed_luminance_ = -1;
  RunLoop::Id watch_ = 0;
  BOOL autosizes_ = NO;
};

void export_backdrop_view();

/// Registers backdrop views and their settings. Requires the classes of views. Idempotent.
void export_backdrop();

}  // namespace host::uikit
