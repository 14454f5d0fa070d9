#include "host/springboard/model/default_layout.h"

#include <algorithm>
#include <array>
#include <set>

namespace host::springboard {
namespace {

constexpr std::array kDock{
    "com.apple.mobilephone",
    "com.apple.mobilemail",
    "com.apple.mobilesafari",
    "com.apple.MobileSMS",
};

// Music comes first in the bottom row: a thumb reaches it and has the whole screen to drag it up.
constexpr std::array kFirstPage{
    "com.apple.mobilecal",   "com.apple.mobileslideshow", "com.apple.camera",
    "com.apple.weather",     "com.apple.mobiletimer",     "com.apple.Maps",
    "com.apple.videos",      "com.apple.mobilenotes",     "com.apple.reminders",
    "com.apple.stocks",      "com.apple.gamecenter",      "com.apple.news",
    "com.apple.Music",       "com.apple.iBooks",          "com.apple.AppStore",
    "com.apple.Preferences",
};

constexpr std::array kSecondPage{
    "com.apple.podcasts",
    "com.apple.Passbook",
    "com.apple.files",
};

constexpr const char* kFolderTitle = "Utilities";
constexpr std::array kFolder{
    "com.apple.MobileAddressBook", "com.apple.calculator", "com.apple.compass",
    "com.apple.VoiceMemos",        "com.apple.extras",
};

Slot application_slot(std::string bundle) {
  return {std::move(bundle), false, {}, {}};
}

/// Returns the slot without the applications that `keep` rejects; empty when nothing is left.
template <class Keep>
std::optional<Slot> filtered(Slot slot, Keep keep) {
  if (!slot.is_folder) return keep(slot.id) ? std::optional(slot) : std::nullopt;
  std::erase_if(slot.contents, [&](const std::string& id) { return !keep(id); });
  return slot.contents.empty() ? std::nullopt : std::optional(slot);
}

HomeLayout whole_default_layout(HomeLayout::Capacity capacity) {
  HomeLayout layout(capacity);
  for (const char* bundle : kDock)
    layout.append_to_dock(application_slot(bundle));
  for (const char* bundle : kFirstPage)
    layout.append(application_slot(bundle));
  Slot folder{{}, true, kFolderTitle, {kFolder.begin(), kFolder.end()}};
  layout.append(std::move(folder), 1);
  for (const char* bundle : kSecondPage)
    layout.append(application_slot(bundle), 1);
  return layout;
}

}  // namespace

std::vector<std::string> default_applications() {
  return whole_default_layout({}).applications();
}

HomeLayout default_layout(HomeLayout::Capacity capacity,
                          const std::vector<InstalledApplication>& installed) {
  return fit_to_installed(whole_default_layout(capacity), installed);
}

HomeLayout fit_to_installed(const HomeLayout& saved,
                            const std::vector<InstalledApplication>& installed) {
  std::set<std::string> waiting;
  for (const InstalledApplication& application : installed)
    waiting.insert(application.bundle);
  const auto keep = [&](const std::string& id) { return waiting.erase(id) > 0; };

  HomeLayout layout(saved.capacity());
  for (const Slot& slot : saved.dock()) {
    if (auto kept = filtered(slot, keep); kept && !layout.append_to_dock(*kept))
      layout.append(std::move(*kept));
  }
  for (std::size_t page = 0; page < saved.pages().size(); ++page) {
    for (const Slot& slot : saved.pages()[page]) {
      if (auto kept = filtered(slot, keep)) layout.append(std::move(*kept), page);
    }
  }
  for (const InstalledApplication& application : installed) {
    if (!waiting.contains(application.bundle)) continue;
    layout.append(application_slot(application.bundle), layout.pages().size() - 1);
  }
  layout.remove_empty_pages();
  return layout;
}

}  // namespace host::springboard
