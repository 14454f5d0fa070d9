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

/// A view as large as the screen that shows what an application's process draws, and passes the
/// fingers on it to the application.
class ApplicationView : public objc::Implementation<ApplicationView, SBHostedApplicationView> {
 public:
  using Implementation::Implementation;

  static objc::Ref<SBHostedApplicationView> make(CGRect frame,
                                                 std::weak_ptr<ApplicationProcess> process);

  /// Shows the process's latest picture; the view is hidden until there is one.
  void show_picture() const;
  /// Cancels the fingers that the application has.
  void cancel_fingers();

  /// Passes on a turn of the wheel over this view. Returns false when the application has ended.
  bool turn_wheel(const application::WheelTurn& turn) const;

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);

 private:
  void pass_on(NSSet touches, application::FingerPhase phase);
  int number_of(UITouch touch);
  void send(int finger, application::FingerPhase phase, CGPoint point, double time) const;

  std::weak_ptr<ApplicationProcess> process_;
  /// The fingers that are down, by the numbers under which the application knows them.
  std::map<int, objc::Ref<UITouch>> fingers_;
};

void export_application_view();

}  // namespace host::springboard
