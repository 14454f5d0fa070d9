#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/power_loss/recorder.h"

namespace power_loss {

/// What the files hold after a start, by their name.
using Files = std::map<std::string, std::string>;

/// What a careless program would leave out.
struct Careless {
  bool of_contents = false;  // its files are not flushed
  bool of_names = false;     // their folders are not
};

/// Calls `visit` with everything that a disk with a journal may hold when the power fails after the
/// first `count` operations, each once. Names change in the order of the operations; the last
/// changes may be missing unless their folder was flushed after them. Contents that were not
/// flushed may be there, missing, or there without what was written before.
void visit_disks(const Snapshot& before, const std::vector<Operation>& operations,
                 std::size_t count, Careless careless,
                 const std::function<void(const Files&)>& visit);

/// What the files hold when everything has reached the disk.
Files files_after(const Snapshot& before, const std::vector<Operation>& operations);

/// Writes the files into an empty folder.
void lay_out(const Files& files, const std::filesystem::path& folder);

}  // namespace power_loss
