#include "host/activator/assignment/assignment_store.h"

#include "objc/autorelease_pool.h"

namespace host::activator {

const Assignments& AssignmentStore::current() {
  const auto stamp = file_.stamp();
  if (stamp == stamp_ && !file_.is_unread()) return read_;
  stamp_ = stamp;
  read_ = {};
  objc::AutoreleasePool pool;
  const NSDictionary list = file_.read();
  if (!list) return read_;
  if (auto read = Assignments::from(list)) {
    read_ = std::move(*read);
  } else {
    file_.set_aside();
  }
  return read_;
}

bool AssignmentStore::assign(const std::string& event, const std::string& mode,
                             const std::string& listener) {
  Assignments changed = current();
  return !changed.add(event, mode, listener) || keep(std::move(changed));
}

bool AssignmentStore::unassign(const std::string& event, const std::string& mode,
                               const std::string& listener) {
  Assignments changed = current();
  return !changed.remove(event, mode, listener) || keep(std::move(changed));
}

bool AssignmentStore::keep(Assignments changed) {
  objc::AutoreleasePool pool;
  if (!file_.write(changed.property_list())) return false;
  read_ = std::move(changed);
  stamp_ = file_.stamp();
  return true;
}

}  // namespace host::activator
