#pragma once

#include <map>
#include <memory>

#include "host/springboard/processes/application_process.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIEvent.h"
#include "platform/UIKit/UITouch.h"

namespace host::springboard {

struct SBHostedApplicationView
    : objc::Bound<SBHostedApplicationView, "SBHostedApplicationView", UIView> {};

/// What an application's process draws, as a view as large as the screen; the fingers on it are the
/// application's.
class ApplicationView : public objc::Implementation<ApplicationView, SBHostedApplicationView> {
 public:
  using Implementation::Implementation;

  static objc::Ref<SBHostedApplicationView> make(CGRect frame,
                                                 std::weak_ptr<ApplicationProcess> process);

  /// Hidden until there is a picture.
  void show_picture() const;
  /// Takes the fingers away from the application.
  void cancel_fingers();

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);

 private:
  void pass_on(NSSet touches, application::FingerPhase phase);
  int number_of(UITouch touch);
  void send(int finger, application::FingerPhase phase, CGPoint point, double time) const;

  std::weak_ptr<ApplicationProcess> process_;
  /// Those that are down, by the numbers that the application knows them by.
  std::map<int, objc::Ref<UITouch>> fingers_;
};

void export_application_view();

}  // namespace host::springboard
