#include "tests/power_loss/recorder.h"

#include <fcntl.h>

#include <fstream>
#include <iterator>

namespace power_loss {
namespace {

namespace fs = std::filesystem;
using Kind = Operation::Kind;

Recorder* recorder = nullptr;
bool refuses_unnamed_files = false;

std::string bytes_of(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

Recorder* Recorder::current() {
  return recorder;
}

Recorder::Recorder(const fs::path& folder) : folder_(fs::canonical(folder)) {
  before_ = snapshot_of(folder_);
  for (const auto& [name, file] : before_.names) {
    struct stat status {};
    stat((folder_ / name).c_str(), &status);
    files_[{status.st_dev, status.st_ino}] = file;
  }
  last_file_ = static_cast<int>(before_.contents.size());
  recorder = this;
}

Recorder::~Recorder() {
  recorder = nullptr;
}

void Recorder::add(Operation operation) {
  operations_.push_back(std::move(operation));
}

int Recorder::file_of(int descriptor) const {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) return 0;
  const auto known = files_.find({status.st_dev, status.st_ino});
  return known == files_.end() ? 0 : known->second;
}

int Recorder::file_at(int folder, const char* path, int flags) const {
  struct stat status {};
  if (fstatat(folder, path, &status, flags) != 0) return 0;
  const auto known = files_.find({status.st_dev, status.st_ino});
  return known == files_.end() ? 0 : known->second;
}

std::string Recorder::name_of(int folder, const char* path) const {
  fs::path whole = path;
  std::error_code error;
  if (whole.is_relative() && folder != AT_FDCWD)
    whole = fs::read_symlink("/proc/self/fd/" + std::to_string(folder), error) / whole;
  const fs::path parent = fs::canonical(whole.parent_path(), error);
  if (error) return {};
  const fs::path relative = (parent / whole.filename()).lexically_relative(folder_);
  return relative.empty() || *relative.begin() == ".." ? std::string() : relative.string();
}

void Recorder::made(int descriptor, const std::string& name) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) return;
  // The numbers of deleted files are used again: what is new has a new number here.
  files_[{status.st_dev, status.st_ino}] = ++last_file_;
  add({Kind::kMake, last_file_, 0, {}, {}, {}});
  if (!name.empty()) named(last_file_, name);
}

void Recorder::written(int descriptor, std::uint64_t offset, std::string_view bytes) {
  const int file = file_of(descriptor);
  if (file) add({Kind::kWrite, file, offset, std::string(bytes), {}, {}});
}

void Recorder::truncated(int descriptor, std::uint64_t size) {
  const int file = file_of(descriptor);
  if (file) add({Kind::kTruncate, file, size, {}, {}, {}});
}

void Recorder::flushed(int descriptor) {
  if (const int file = file_of(descriptor)) return add({Kind::kFlush, file, 0, {}, {}, {}});
  const std::string self = "/proc/self/fd/" + std::to_string(descriptor);
  std::error_code error;
  const fs::path folder = fs::read_symlink(self, error).lexically_relative(folder_);
  if (!folder.empty() && *folder.begin() != "..")
    add({Kind::kFlushFolder, 0, 0, {}, folder == "." ? std::string() : folder.string(), {}});
}

void Recorder::named(int file, const std::string& name) {
  if (file && !name.empty()) add({Kind::kName, file, 0, {}, name, {}});
}

void Recorder::renamed(const std::string& name, const std::string& new_name) {
  if (!name.empty()) add({Kind::kRename, 0, 0, {}, name, new_name});
}

void Recorder::unnamed(const std::string& name) {
  if (!name.empty()) add({Kind::kUnname, 0, 0, {}, name, {}});
}

NoUnnamedFiles::NoUnnamedFiles() {
  refuses_unnamed_files = true;
}

NoUnnamedFiles::~NoUnnamedFiles() {
  refuses_unnamed_files = false;
}

bool NoUnnamedFiles::is_active() {
  return refuses_unnamed_files;
}

Snapshot snapshot_of(const fs::path& folder) {
  Snapshot snapshot;
  int number = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    snapshot.contents[++number] = bytes_of(entry.path());
    snapshot.names[entry.path().lexically_relative(folder)] = number;
  }
  return snapshot;
}

}  // namespace power_loss
