#pragma once

#include <optional>
#include <string>

#include "host/basics/descriptor.h"

namespace host::recording {

/// A new file for a script. Each line is in the file at once: what was done before the phone ends
/// is not lost.
class ScriptFile {
 public:
  /// Holds nothing, with the reason in `problem`, when there is such a file already or none can be
  /// made.
  static std::optional<ScriptFile> make(const std::string& path, std::string& problem);

  const std::string& path() const { return path_; }
  /// Logs the first failure; after it nothing is written.
  void put(const std::string& line);

 private:
  ScriptFile(std::string path, Descriptor file) : path_(std::move(path)), file_(std::move(file)) {}

  std::string path_;
  Descriptor file_;
};

}  // namespace host::recording
