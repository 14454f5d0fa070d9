#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// The applications that the user has opened since the phone started, each with its last picture.
/// The owner of the running applications reports here what comes to the front, and is notified of
/// what the user closes.
class RecentApplications {
 public:
  using Closed = std::function<void(const std::string& bundle)>;
  using Left = std::function<void()>;

  void came_to_front(const std::string& bundle);
  void went_home() { front_.clear(); }
  /// The application that the user is in; empty on the home screen.
  const std::string& front() const { return front_; }

  /// The latest first.
  const std::vector<std::string>& all() const { return all_; }
  bool contains(const std::string& bundle) const;

  void keep_picture(const std::string& bundle, UIImage picture);
  /// The application's last picture; nil when it has never been shown.
  UIImage picture(const std::string& bundle) const;

  /// The user goes from the application in front to the home screen.
  void leave();
  /// Sets the function called when the user does so; it must take the application off the screen.
  void on_leave(Left left) { left_ = std::move(left); }

  /// Forgets an application that has ended or was uninstalled.
  void forget(const std::string& bundle);
  /// The user closes the application: it is forgotten, and its process is to end.
  void close(const std::string& bundle);
  /// Sets the function called after an application was closed; it may end the process.
  void on_close(Closed closed) { closed_ = std::move(closed); }

 private:
  std::vector<std::string> all_;
  std::map<std::string, objc::Ref<UIImage>> pictures_;
  std::string front_;
  Closed closed_;
  Left left_;
};

RecentApplications& recent_applications();

}  // namespace host::springboard
