#include "host/launcher/log_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>

#include "host/runtime/log.h"

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

LogFile& shared_log_file() {
  static LogFile file;
  return file;
}

bool is_seen(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) return false;
  return S_ISREG(status.st_mode) || S_ISFIFO(status.st_mode) || isatty(descriptor) == 1;
}

std::string local_time() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  char text[64] = "";
  if (localtime_r(&now, &parts)) std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
  return text;
}

}  // namespace

bool LogFile::open(const fs::path& path) {
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  // Written at its end by every process, wherever that is after it has started again.
  file_ = Descriptor(::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                            S_IRUSR | S_IWUSR));
  path_ = path;
  if (file_) keep_bounded();
  return static_cast<bool>(file_);
}

void LogFile::keep_bounded() const {
  struct stat status {};
  if (!file_ || fstat(file_.get(), &status) != 0) return;
  if (static_cast<std::size_t>(status.st_size) <= kLargest) return;
  const fs::path previous = path_.string() + ".1";
  std::error_code ignored;
  fs::remove(previous, ignored);
  // Other processes have the file open, so it stays where it is. Lines that they write in between
  // are lost.
  fs::copy_file(path_, previous, ignored);
  static_cast<void>(!ftruncate(file_.get(), 0));
}

fs::path default_log_file() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state && *state == '/') return fs::path(state) / "sonavue/sonavue.log";
  const char* home = std::getenv("HOME");
  return fs::path(home ? home : "/") / ".local/state/sonavue/sonavue.log";
}

void open_standard_streams() {
  // A new descriptor has the lowest free number.
  int opened = 0;
  do {
    opened = ::open("/dev/null", O_RDWR);
  } while (opened >= 0 && opened <= STDERR_FILENO);
  if (opened >= 0) close(opened);
}

void log_to_file_unless_seen() {
  if (is_seen(STDERR_FILENO)) return;
  LogFile& file = shared_log_file();
  if (!file.open(default_log_file())) return;
  dup2(file.descriptor(), STDERR_FILENO);
  spdlog::info("starts at {}", local_time());
}

void keep_log_bounded() {
  shared_log_file().keep_bounded();
}

}  // namespace host::launcher
