#include "host/springboard/model/icon_state.h"

#include "host/runtime/log.h"
#include "host/springboard/model/strings.h"
#include "platform/Foundation/NSDictionary.h"

namespace host::springboard {
namespace {

NSArray array_or_nil(objc::Object object) {
  const NSArray array = objc::cast<NSArray>(object);
  return array.isKindOfClass(NSArray::cls()) ? array : NSArray();
}

// More than a phone has room for. Every look for an icon goes through all of them.
constexpr std::size_t kMostIcons = 1000;

/// Fills a layout from the file's lists.
class Arrangement {
 public:
  explicit Arrangement(HomeLayout::Capacity capacity) : layout_(capacity) {}

  void add_dock(NSArray entries) {
    for (const objc::Object entry : entries.of()) {
      auto slot = read_slot(entry);
      if (slot && !layout_.append_to_dock(*slot)) layout_.append(std::move(*slot));
    }
  }
  void add_pages(NSArray lists) {
    std::size_t page = 0;
    for (const objc::Object list : lists.of()) {
      for (const objc::Object entry : array_or_nil(list).of()) {
        if (auto slot = read_slot(entry)) layout_.append(std::move(*slot), page);
      }
      ++page;
    }
  }
  HomeLayout layout() && { return std::move(layout_); }
  /// Returns whether there were more icons than it has.
  bool is_overfull() const { return icons_ > kMostIcons; }

 private:
  /// Returns nothing for what is no icon, and when there are too many.
  std::optional<Slot> read_slot(objc::Object entry) {
    const NSString id = string_or_nil(entry);
    const NSDictionary folder = objc::cast<NSDictionary>(entry);
    if ((!id && !folder.isKindOfClass(NSDictionary::cls())) || !has_room()) return std::nullopt;
    if (id) return Slot{to_string(id), false, {}, {}};
    Slot slot;
    slot.is_folder = true;
    slot.title = to_string(string_or_nil(folder.objectForKey("displayName"_ns)));
    for (const objc::Object list : array_or_nil(folder.objectForKey("iconLists"_ns)).of())
      fill(slot, array_or_nil(list));
    return slot;
  }

  void fill(Slot& folder, NSArray entries) {
    for (const objc::Object entry : entries.of()) {
      const NSString id = string_or_nil(entry);
      if (id && has_room()) folder.contents.push_back(to_string(id));
    }
  }

  bool has_room() { return ++icons_ <= kMostIcons; }

  HomeLayout layout_;
  std::size_t icons_ = 0;
};

objc::Object write_slot(const Slot& slot) {
  if (!slot.is_folder) return to_ns(slot.id);
  const auto contents = NSMutableArray::array();
  for (const std::string& id : slot.contents)
    contents.addObject(to_ns(id));
  const auto folder = NSMutableDictionary::dictionary();
  folder.setObject(to_ns(slot.title), "displayName"_ns);
  folder.setObject(NSArray::arrayWithObject(contents), "iconLists"_ns);
  return folder;
}

NSArray write_list(const HomeLayout::List& list) {
  const auto entries = NSMutableArray::array();
  for (const Slot& slot : list)
    entries.addObject(write_slot(slot));
  return entries;
}

}  // namespace

std::optional<HomeLayout> read_icon_state(foundation::PropertyListFile& file,
                                          HomeLayout::Capacity capacity) {
  const NSDictionary state = file.read();
  if (!state) return std::nullopt;
  const NSArray dock = array_or_nil(state.objectForKey("buttonBar"_ns));
  const NSArray pages = array_or_nil(state.objectForKey("iconLists"_ns));
  if (!dock || !pages) {
    file.set_aside();
    return std::nullopt;
  }
  Arrangement arrangement(capacity);
  arrangement.add_dock(dock);
  arrangement.add_pages(pages);
  if (arrangement.is_overfull())
    spdlog::warn("{} holds more than {} icons: the others go to free places", file.path(),
                 kMostIcons);
  return std::move(arrangement).layout();
}

bool write_icon_state(const HomeLayout& layout, const foundation::PropertyListFile& file) {
  const auto pages = NSMutableArray::array();
  for (const HomeLayout::List& page : layout.pages())
    pages.addObject(write_list(page));
  const auto state = NSMutableDictionary::dictionary();
  state.setObject(write_list(layout.dock()), "buttonBar"_ns);
  state.setObject(pages, "iconLists"_ns);
  if (file.write(state)) return true;
  spdlog::warn("{} could not be written: the arrangement is lost at the restart", file.path());
  return false;
}

}  // namespace host::springboard
