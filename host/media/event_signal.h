#pragma once

namespace host::media {

// A file descriptor that becomes readable when there is work for the main thread. Raising it is
// safe from any thread and never blocks.
class EventSignal {
 public:
  EventSignal();
  ~EventSignal();
  EventSignal(const EventSignal&) = delete;
  EventSignal& operator=(const EventSignal&) = delete;

  int descriptor() const { return descriptor_; }
  void raise();
  void clear();

 private:
  int descriptor_;
};

}  // namespace host::media
