#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace host::foundation {

/// A file that is replaced as a whole, many times. A disk can take longer than a frame of the
/// screen, so a thread of its own writes it, which starts with the first bytes. All members are for
/// one thread. The destructor waits until the latest bytes are on the disk.
class BackgroundFile {
 public:
  enum class Pace {
    kWaits,  // `write` returns when the bytes are on the disk, as in a process without threads.
    kNeverWaits,
  };

  /// `path` is one of this machine.
  BackgroundFile(std::string path, Pace pace) : path_(std::move(path)), pace_(pace) {}
  ~BackgroundFile();

  /// Bytes that are not written yet are replaced by these. Errors are logged, as of every file.
  void write(std::string bytes);
  /// Whether the latest attempt that has ended was successful.
  bool is_writable() const;

 private:
  void run();

  const std::string path_;
  const Pace pace_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<std::string> waiting_;
  bool failed_ = false;
  bool ends_ = false;
  std::thread thread_;
};

}  // namespace host::foundation
