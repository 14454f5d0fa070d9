#pragma once

#include <optional>
#include <string>

#include "host/media_player/media_options.h"

namespace host::launcher {

/// Tells the user of a terminal or of a log how far the reading or making of music is: one line of
/// the terminal that is rewritten, a few lines anywhere else.
class ProgressLines {
 public:
  explicit ProgressLines(bool has_terminal) : has_terminal_(has_terminal) {}

  void operator()(const media_player::MediaProgress& progress);

 private:
  void follow(const std::string& work, std::size_t done, std::size_t all);
  void say_result(const media_player::MediaProgress& progress);

  bool has_terminal_;
  std::size_t said_ = 0;
  std::string shown_;
  std::string result_;
};

/// The part that is done, from 0 to 1; nothing while it is not known how much there is to do.
std::optional<double> part_done(const media_player::MediaProgress& progress);

/// "1,204", as a number for people.
std::string in_thousands(std::size_t number);

}  // namespace host::launcher
