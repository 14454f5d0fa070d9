#include "host/foundation/load_guard.h"

#include <fmt/format.h>

#include <fstream>

namespace host::foundation {
namespace {

std::string version_of(const std::filesystem::path& file) {
  std::error_code error;
  const auto size = std::filesystem::file_size(file, error);
  const auto time = std::filesystem::last_write_time(file, error);
  return fmt::format("{}-{}", size, time.time_since_epoch().count());
}

}  // namespace

LoadGuard::LoadGuard(const std::filesystem::path& library, const std::filesystem::path& marks)
    : mark_(marks / (library.filename().string() + ".loading")), version_(version_of(library)) {
  std::ifstream mark(mark_);
  std::string version;
  int crashes = 0;
  if (!(mark >> version >> crashes) || version != version_) return;
  crashes_ = crashes;
  std::getline(mark >> std::ws, reason_);
}

void LoadGuard::write_mark(const std::string& reason) const {
  std::error_code error;
  std::filesystem::create_directories(mark_.parent_path(), error);
  std::ofstream(mark_) << version_ << ' ' << crashes_ + 1 << ' ' << reason << '\n';
}

void LoadGuard::will_load() {
  write_mark("");
}

void LoadGuard::will_not_load(const std::string& reason) {
  write_mark(reason);
}

void LoadGuard::did_load() {
  crashes_ = 0;
  std::error_code error;
  std::filesystem::remove(mark_, error);
}

}  // namespace host::foundation
