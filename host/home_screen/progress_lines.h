#pragma once

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
  void rewrite_line(const media_player::MediaProgress& progress);
  void say_part(const media_player::MediaProgress& progress);
  void say_result(const media_player::MediaProgress& progress);

  bool has_terminal_;
  std::size_t said_ = 0;
  std::string shown_;
  std::string result_;
};

/// "1,204", as a number for people.
std::string in_thousands(std::size_t number);

}  // namespace host::launcher
