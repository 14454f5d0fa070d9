#include "device/check/package_file.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <memory>

namespace sonavue::device {
namespace {

using Archive = std::unique_ptr<archive, decltype(&archive_read_free)>;

constexpr unsigned kModeBits = 07777;

Bytes content_of(archive* from) {
  Bytes content;
  std::uint8_t buffer[1 << 16];
  for (;;) {
    const la_ssize_t count = archive_read_data(from, buffer, sizeof buffer);
    if (count < 0) throw FormatError("its archive is damaged");
    if (count == 0) return content;
    content.insert(content.end(), buffer, buffer + count);
  }
}

/// Normalises a path: `./a/b/` becomes `a/b`.
std::string plain_path(std::string path) {
  if (path.rfind("./", 0) == 0) path.erase(0, 2);
  while (!path.empty() && path.back() == '/')
    path.pop_back();
  return path;
}

std::vector<PackagedFile> read_archive(const Bytes& bytes) {
  const Archive from(archive_read_new(), &archive_read_free);
  archive_read_support_filter_all(from.get());
  archive_read_support_format_ar(from.get());
  archive_read_support_format_tar(from.get());
  if (archive_read_open_memory(from.get(), bytes.data(), bytes.size()) != ARCHIVE_OK)
    throw FormatError("it is not a package");
  std::vector<PackagedFile> files;
  archive_entry* entry = nullptr;
  int result = ARCHIVE_OK;
  while ((result = archive_read_next_header(from.get(), &entry)) == ARCHIVE_OK) {
    const auto kind = archive_entry_filetype(entry);
    files.push_back({plain_path(archive_entry_pathname(entry)), kind == AE_IFDIR, kind == AE_IFREG,
                     archive_entry_mode(entry) & kModeBits,
                     static_cast<long>(archive_entry_uid(entry)),
                     static_cast<long>(archive_entry_gid(entry)), content_of(from.get())});
  }
  if (result != ARCHIVE_EOF) throw FormatError("its archive is damaged");
  return files;
}

const PackagedFile* find(const std::vector<PackagedFile>& files, const std::string& path) {
  const auto found =
      std::find_if(files.begin(), files.end(), [&](const auto& each) { return each.path == path; });
  return found == files.end() ? nullptr : &*found;
}

}  // namespace

const PackagedFile* PackageFile::control_file(const std::string& path) const {
  return find(control, path);
}

const PackagedFile* PackageFile::data_file(const std::string& path) const {
  return find(data, path);
}

PackageFile read_package(const std::filesystem::path& path) {
  PackageFile package;
  for (const PackagedFile& part : read_archive(read_file(path))) {
    package.parts.push_back(part.path);
    if (part.path.rfind("control.tar", 0) == 0) package.control = read_archive(part.content);
    if (part.path.rfind("data.tar", 0) == 0) package.data = read_archive(part.content);
  }
  if (package.control.empty() || package.data.empty()) throw FormatError("it is not a package");
  return package;
}

}  // namespace sonavue::device
