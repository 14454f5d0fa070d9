#pragma once

#include <string>
#include <vector>

#include "host/basics/user_warning.h"

namespace host::test {

/// Keeps what the user is told while it exists. One at a time, for one thread.
class ToldUser {
 public:
  ToldUser() {
    words().clear();
    user_warning = [](std::string_view few_words) { words().emplace_back(few_words); };
  }
  ~ToldUser() { user_warning = nullptr; }
  ToldUser(const ToldUser&) = delete;
  ToldUser& operator=(const ToldUser&) = delete;

  static std::vector<std::string>& words() {
    static std::vector<std::string> told;
    return told;
  }
};

}  // namespace host::test
