#include "host/springboard/model/home_layout.h"

#include <algorithm>

namespace host::springboard {
namespace {

using List = HomeLayout::List;

std::optional<std::size_t> index_of(const List& list, std::string_view id) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const Slot& slot) { return slot.id == id; });
  if (found == list.end()) return std::nullopt;
  return static_cast<std::size_t>(found - list.begin());
}

std::optional<Place> find_in_folders(const List& list, std::string_view id) {
  for (const Slot& slot : list) {
    const auto found = std::find(slot.contents.begin(), slot.contents.end(), id);
    if (found == slot.contents.end()) continue;
    return Place{Area::kFolder, 0, slot.id,
                 static_cast<std::size_t>(found - slot.contents.begin())};
  }
  return std::nullopt;
}

std::size_t count_folders(const List& list) {
  return static_cast<std::size_t>(
      std::count_if(list.begin(), list.end(), [](const Slot& slot) { return slot.is_folder; }));
}

template <class Item>
void insert_at(std::vector<Item>& items, std::size_t index, Item item) {
  const auto at = static_cast<std::ptrdiff_t>(std::min(index, items.size()));
  items.insert(items.begin() + at, std::move(item));
}

}  // namespace

std::optional<Place> HomeLayout::find(std::string_view id) const {
  if (const auto index = index_of(dock_, id)) return Place{Area::kDock, 0, {}, *index};
  if (const auto inside = find_in_folders(dock_, id)) return inside;
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    if (const auto index = index_of(pages_[page], id)) return Place{Area::kPage, page, {}, *index};
    if (const auto inside = find_in_folders(pages_[page], id)) return inside;
  }
  return std::nullopt;
}

const Slot* HomeLayout::folder(std::string_view id) const {
  return const_cast<HomeLayout*>(this)->find_folder(id);
}

Slot* HomeLayout::find_folder(std::string_view id) {
  const auto place = find(id);
  if (!place || place->area == Area::kFolder) return nullptr;
  Slot& slot = (*list_of(*place))[place->index];
  return slot.is_folder ? &slot : nullptr;
}

std::vector<std::string> HomeLayout::applications() const {
  std::vector<std::string> all;
  const auto gather = [&](const List& list) {
    for (const Slot& slot : list) {
      if (!slot.is_folder) all.push_back(slot.id);
      all.insert(all.end(), slot.contents.begin(), slot.contents.end());
    }
  };
  for (const List& page : pages_)
    gather(page);
  gather(dock_);
  return all;
}

void HomeLayout::append(Slot slot, std::size_t first_page) {
  if (slot.is_folder && slot.id.empty()) slot.id = new_folder_id();
  while (pages_.size() <= first_page)
    pages_.emplace_back();
  for (std::size_t page = first_page; page < pages_.size(); ++page) {
    if (pages_[page].size() >= capacity_.page) continue;
    pages_[page].push_back(std::move(slot));
    return;
  }
  pages_.push_back({std::move(slot)});
}

bool HomeLayout::append_to_dock(Slot slot) {
  if (dock_.size() >= capacity_.dock) return false;
  if (slot.is_folder && slot.id.empty()) slot.id = new_folder_id();
  dock_.push_back(std::move(slot));
  return true;
}

bool HomeLayout::remove(std::string_view id) {
  return take(id).has_value();
}

bool HomeLayout::move(std::string_view id, const Place& to) {
  const auto from = find(id);
  if (!from) return false;
  const bool is_folder = from->area != Area::kFolder && (*list_of(*from))[from->index].is_folder;
  if (to.area == Area::kFolder) {
    const Slot* target = folder(to.folder);
    const bool inside_already = from->area == Area::kFolder && from->folder == to.folder;
    if (!target || is_folder) return false;
    if (!inside_already && target->contents.size() >= capacity_.folder) return false;
  }
  if (to.area == Area::kDock && from->area != Area::kDock && dock_.size() >= capacity_.dock)
    return false;
  // Taking a folder's only icon out, even to move it within the folder, would remove the folder.
  if (to.area == Area::kFolder && from->area == Area::kFolder && to.folder == from->folder) {
    std::vector<std::string>& contents = find_folder(to.folder)->contents;
    contents.erase(contents.begin() + static_cast<std::ptrdiff_t>(from->index));
    insert_at(contents, to.index, std::string(id));
    return true;
  }

  const std::string kept(id);
  Slot slot = *take(kept);
  switch (to.area) {
    case Area::kPage:
      insert_in_page(to.page, to.index, std::move(slot));
      break;
    case Area::kDock:
      insert_at(dock_, to.index, std::move(slot));
      break;
    case Area::kFolder:
      insert_at(find_folder(to.folder)->contents, to.index, kept);
      break;
  }
  return true;
}

bool HomeLayout::drop_on(std::string_view id, std::string_view target, std::string_view title) {
  const auto from = find(id);
  const auto at = find(target);
  if (!from || !at || id == target || at->area == Area::kFolder) return false;
  const std::string kept(id);
  if (const Slot* existing = folder(target)) {
    return move(kept, {Area::kFolder, 0, std::string(target), existing->contents.size()});
  }
  if (folder(id)) return false;
  const std::string folder_id = new_folder_id();
  Slot& slot = (*list_of(*at))[at->index];
  slot = Slot{folder_id, true, std::string(title), {std::string(target)}};
  return move(kept, {Area::kFolder, 0, folder_id, 1});
}

bool HomeLayout::move_out_of_folder(std::string_view id) {
  const auto from = find(id);
  if (!from || from->area != Area::kFolder) return false;
  const std::string kept(id);
  const std::string folder_id = from->folder;
  Place to = *find(folder_id);
  const bool last_one = folder(folder_id)->contents.size() == 1;
  if (!last_one) ++to.index;
  if (to.area == Area::kDock && dock_.size() >= capacity_.dock && !last_one)
    to = {Area::kPage, 0, {}, pages_.front().size()};
  Slot slot = *take(kept);
  if (to.area == Area::kDock) {
    insert_at(dock_, to.index, std::move(slot));
  } else {
    insert_in_page(to.page, to.index, std::move(slot));
  }
  return true;
}

void HomeLayout::remove_empty_pages() {
  std::erase_if(pages_, [](const List& page) { return page.empty(); });
  if (pages_.empty()) pages_.emplace_back();
}

HomeLayout::List* HomeLayout::list_of(const Place& place) {
  if (place.area == Area::kDock) return &dock_;
  return place.area == Area::kPage ? &pages_[place.page] : nullptr;
}

std::optional<Slot> HomeLayout::take(std::string_view id) {
  const auto place = find(id);
  if (!place) return std::nullopt;
  if (List* list = list_of(*place)) {
    Slot slot = std::move((*list)[place->index]);
    list->erase(list->begin() + static_cast<std::ptrdiff_t>(place->index));
    return slot;
  }
  std::vector<std::string>& contents = find_folder(place->folder)->contents;
  Slot slot{std::move(contents[place->index]), false, {}, {}};
  contents.erase(contents.begin() + static_cast<std::ptrdiff_t>(place->index));
  if (contents.empty()) take(place->folder);
  return slot;
}

void HomeLayout::insert_in_page(std::size_t page, std::size_t index, Slot slot) {
  page = std::min(page, pages_.size());
  if (page == pages_.size()) pages_.emplace_back();
  insert_at(pages_[page], index, std::move(slot));
  if (pages_[page].size() <= capacity_.page) return;
  Slot pushed_on = std::move(pages_[page].back());
  pages_[page].pop_back();
  insert_in_page(page + 1, 0, std::move(pushed_on));
}

std::string HomeLayout::new_folder_id() const {
  // The first attempt succeeds, unless folders were removed.
  std::size_t folders = count_folders(dock_);
  for (const List& page : pages_)
    folders += count_folders(page);
  for (std::size_t number = folders + 1;; ++number) {
    std::string id = "folder." + std::to_string(number);
    if (!contains(id)) return id;
  }
}

}  // namespace host::springboard
