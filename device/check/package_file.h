#pragma once

#include "device/macho/bytes.h"

namespace sonavue::device {

/// One file or folder of a package, as stored in its archive.
struct PackagedFile {
  std::string path;
  bool is_folder;
  bool is_plain;
  unsigned mode;
  long owner;
  long group;
  Bytes content;
};

/// The contents of a finished package.
struct PackageFile {
  std::vector<PackagedFile> control;
  std::vector<PackagedFile> data;
  /// The names of the package's members, which show how they are compressed.
  std::vector<std::string> parts;

  const PackagedFile* control_file(const std::string& path) const;
  const PackagedFile* data_file(const std::string& path) const;
};

/// Throws FormatError if the file is not a package.
PackageFile read_package(const std::filesystem::path& path);

}  // namespace sonavue::device
