#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UIApplication.h"

namespace host::uikit {

/// The only application of the process. Events come in here, and actions without a target are
/// routed from here along the responder chain.
class Application : public objc::Implementation<Application, UIApplication> {
 public:
  explicit Application(UIApplication owner) : Implementation(owner) {}
  ~Application();

  static UIApplication shared(objc::Object cls);
  UIApplication init();
  UIResponder next_responder();
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  void did_finish_launching(objc::Object) {}

  UIWindow key_window() const;
  NSArray windows() const;
  void send_event(UIEvent event);
  BOOL send_action(objc::Sel action, objc::Object target, objc::Object sender, UIEvent event);

  BOOL can_open(NSURL url);
  BOOL open(NSURL url);

  BOOL is_ignoring_interaction_events() const { return ignoring_ > 0; }
  void begin_ignoring_interaction_events() { ++ignoring_; }
  void end_ignoring_interaction_events() { ignoring_ -= ignoring_ > 0 ? 1 : 0; }

  BOOL is_status_bar_hidden() const { return status_bar_hidden_; }
  void set_status_bar_hidden(BOOL hidden) { status_bar_hidden_ = hidden; }
  CGFloat status_bar_height() const;
  CGRect status_bar_frame() const;
  UIInterfaceOrientation status_bar_orientation() const { return UIInterfaceOrientationPortrait; }

 private:
  objc::Object delegate_;
  int ignoring_ = 0;
  BOOL status_bar_hidden_ = NO;
};

/// Creates the process's application, an instance of the named class, and tells it that it has
/// launched. Returns nil when the class does not exist. The application lives as long as the
/// process.
UIApplication launch_application(const char* class_name);

void export_application_class();

}  // namespace host::uikit
