#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::springboard {

/// What stands in one slot: an application by its bundle identifier, or a folder of applications.
struct Slot {
  std::string id;
  bool is_folder = false;
  std::string title;                  ///< Of a folder.
  std::vector<std::string> contents;  ///< Bundle identifiers inside a folder.
  friend bool operator==(const Slot&, const Slot&) = default;
};

/// Of a folder that one icon makes by its drop on another.
inline constexpr const char* kNewFolderTitle = "New Folder";

enum class Area { kPage, kDock, kFolder };

/// A position: `page` counts for pages, `folder` (an id) for folders.
struct Place {
  Area area = Area::kPage;
  std::size_t page = 0;
  std::string folder;
  std::size_t index = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

/// Where every icon of the home screen stands: pages, dock and folders. A plain value; every change
/// keeps each identifier in exactly one place, no page, dock or folder above its capacity, and no
/// folder empty.
class HomeLayout {
 public:
  struct Capacity {
    std::size_t page = 24;
    std::size_t dock = 4;
    std::size_t folder = 9;
    friend bool operator==(const Capacity&, const Capacity&) = default;
  };
  using List = std::vector<Slot>;

  HomeLayout() = default;
  explicit HomeLayout(Capacity capacity) : capacity_(capacity) {}

  const Capacity& capacity() const { return capacity_; }
  const std::vector<List>& pages() const { return pages_; }
  const List& dock() const { return dock_; }

  std::optional<Place> find(std::string_view id) const;
  bool contains(std::string_view id) const { return find(id).has_value(); }
  /// Nil when no folder has that id.
  const Slot* folder(std::string_view id) const;
  std::vector<std::string> applications() const;

  /// Puts a slot in the first free place from `first_page` on.
  void append(Slot slot, std::size_t first_page = 0);
  bool append_to_dock(Slot slot);
  /// Takes an application out of the layout; a folder that it leaves empty goes as well.
  bool remove(std::string_view id);

  /// Moves an icon to a place, counted as the lists are once it has been taken out. A full page
  /// pushes its last icon to the next page; a full dock or folder, and a folder into a folder, are
  /// refused and change nothing. A page number past the last makes a page.
  bool move(std::string_view id, Place to);
  /// Drops an icon on another: into it when it is a folder, else both into a new folder of that
  /// title, which takes the other's slot.
  bool drop_on(std::string_view id, std::string_view target, std::string_view title);
  /// Puts an icon that stands in a folder right behind that folder.
  bool move_out_of_folder(std::string_view id);

  /// Empty pages vanish; one page always stays. Done when an icon is let go, not while it moves.
  void remove_empty_pages();

  friend bool operator==(const HomeLayout&, const HomeLayout&) = default;

 private:
  List* list_of(const Place& place);
  Slot* find_folder(std::string_view id);
  std::optional<Slot> take(std::string_view id);
  void insert_in_page(std::size_t page, std::size_t index, Slot slot);
  std::string new_folder_id() const;

  Capacity capacity_;
  std::vector<List> pages_{List()};
  List dock_;
};

}  // namespace host::springboard
