#include "host/springboard/switcher/recent_applications.h"

#include <algorithm>

#include "host/springboard/common/shared_instance.h"

namespace host::springboard {

bool RecentApplications::contains(const std::string& bundle) const {
  return std::find(all_.begin(), all_.end(), bundle) != all_.end();
}

void RecentApplications::came_to_front(const std::string& bundle) {
  front_ = bundle;
  std::erase(all_, bundle);
  all_.insert(all_.begin(), bundle);
}

void RecentApplications::keep_picture(const std::string& bundle, UIImage picture) {
  if (contains(bundle)) pictures_[bundle].reset(picture);
}

UIImage RecentApplications::picture(const std::string& bundle) const {
  const auto found = pictures_.find(bundle);
  return found == pictures_.end() ? UIImage() : found->second.get();
}

void RecentApplications::leave() {
  if (left_) left_();
}

void RecentApplications::forget(const std::string& bundle) {
  std::erase(all_, bundle);
  pictures_.erase(bundle);
  if (front_ == bundle) front_.clear();
}

void RecentApplications::close(const std::string& bundle) {
  if (!contains(bundle)) return;
  // The caller's string may be an element that is about to be erased.
  const std::string closing = bundle;  // NOLINT(performance-unnecessary-copy-initialization)
  forget(closing);
  if (closed_) closed_(closing);
}

RecentApplications& recent_applications() {
  return SharedPart<RecentApplications>::get();
}

}  // namespace host::springboard
