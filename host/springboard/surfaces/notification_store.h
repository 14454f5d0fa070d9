#pragma once

#include <functional>
#include <string>
#include <vector>

namespace host::springboard {

/// A received message, as the surfaces show it.
struct Notification {
  std::string title;
  std::string text;
  std::string time;
};

/// The messages received and not yet cleared, newest first.
class NotificationStore {
 public:
  const std::vector<Notification>& all() const { return all_; }
  void add(Notification notification) { all_.insert(all_.begin(), std::move(notification)); }
  void clear() { all_.clear(); }

 private:
  std::vector<Notification> all_;
};

}  // namespace host::springboard
