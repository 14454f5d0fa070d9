#include "host/media/log.h"

#include <spdlog/spdlog.h>

#include "host/basics/user_warning.h"

namespace host::media {

void log_note(std::string_view text) {
  spdlog::info("media: {}", text);
}

void log_warning(std::string_view text) {
  spdlog::warn("media: {}", text);
}

void warn_user(std::string_view text, std::string_view few_words) {
  log_warning(text);
  host::warn_user(few_words);
}

}  // namespace host::media
