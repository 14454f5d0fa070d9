#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// The applications that the user has opened since the phone started, and what each last looked
/// like. Whoever runs applications tells it what comes to the front, and is told what the user has
/// thrown away.
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
  /// What the application last looked like; nil when nobody has seen it.
  UIImage picture(const std::string& bundle) const;

  /// The user goes from the application in front to the home screen.
  void leave();
  /// Called when the user does so; the application is to leave the screen then.
  void on_leave(Left left) { left_ = std::move(left); }

  /// It has ended, or is installed no more.
  void forget(const std::string& bundle);
  /// The user is done with it: it is forgotten, and its process is to end.
  void close(const std::string& bundle);
  /// Called after an application was closed; its process may end then.
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
