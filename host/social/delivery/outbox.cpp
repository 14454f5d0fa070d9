#include "host/social/delivery/outbox.h"

#include <algorithm>
#include <charconv>

#include "host/basics/user_warning.h"
#include "host/files/folder.h"
#include "host/files/new_file.h"
#include "host/runtime/log.h"

namespace host::social {
namespace {

constexpr std::string_view kSuffix = ".txt";
// What people write to each other is for its owner only.
constexpr mode_t kMode = 0600;

/// The N of `kind-N.txt`; 0 for every other name.
unsigned number_in(std::string_view name, std::string_view kind) {
  if (!name.starts_with(kind) || !name.ends_with(kSuffix)) return 0;
  name.remove_prefix(kind.size());
  name.remove_suffix(kSuffix.size());
  if (!name.starts_with('-')) return 0;
  unsigned number = 0;
  const auto [end, error] = std::from_chars(name.data() + 1, name.data() + name.size(), number);
  return error == std::errc() && end == name.data() + name.size() ? number : 0;
}

}  // namespace

unsigned Outbox::next_number(std::string_view kind) const {
  unsigned highest = 0;
  std::error_code error;
  for (const std::filesystem::path& path : files::paths_in(folder_, error))
    highest = std::max(highest, number_in(path.filename().string(), kind));
  return highest + 1;
}

Outbox::Result Outbox::put(std::string_view kind, std::string_view text) const {
  const auto failed = [&](const std::string& reason) {
    const std::string problem = folder_.string() + ": " + reason;
    spdlog::error("a text could not be put into the outbox: {}", problem);
    warn_user("The text could not be kept");
    return Result{{}, problem};
  };
  std::error_code error = files::make_folders(folder_);
  if (error) return failed(error.message());
  const Descriptor folder = files::open_folder(folder_, error);
  if (error) return failed(error.message());
  files::NewFile draft(folder.get(), kMode);
  error = draft.write(std::string(text) + "\n");
  if (error) return failed(error.message());
  for (unsigned number = next_number(kind);; ++number) {
    const std::string name =
        std::string(kind) + "-" + std::to_string(number) + std::string(kSuffix);
    error = draft.take_free_name(name);
    if (!error) return {folder_ / name, {}};
    if (error != std::errc::file_exists) return failed(error.message());
  }
}

}  // namespace host::social
