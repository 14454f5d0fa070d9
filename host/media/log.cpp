#include "host/media/log.h"

#include <spdlog/spdlog.h>

namespace host::media {

namespace {

void (*tell_user)(std::string_view) = nullptr;

}  // namespace

void log_note(std::string_view text) {
  spdlog::info("media: {}", text);
}

void log_warning(std::string_view text) {
  spdlog::warn("media: {}", text);
}

void warn_user(std::string_view text, std::string_view few_words) {
  log_warning(text);
  if (tell_user) tell_user(few_words);
}

void set_user_warning(void (*tell)(std::string_view)) {
  tell_user = tell;
}

}  // namespace host::media
