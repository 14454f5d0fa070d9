#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::springboard {

/// The content of a slot: an application by its bundle identifier, or a folder of applications.
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

/// A position: `page` applies to pages, `folder` (an id) to folders.
struct Place {
  Area area = Area::kPage;
  std::size_t page = 0;
  std::string folder;
  std::size_t index = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

/// The arrangement of the home screen's icons: pages, dock and folders. A plain value. After every
/// change, each identifier is in exactly one place, no page, dock or folder exceeds its capacity,
/// and no folder is empty.
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
  /// Null when no folder has this id.
  const Slot* folder(std::string_view id) const;
  std::vector<std::string> applications() const;

  /// Puts a slot in the first free place from `first_page` on.
  void append(Slot slot, std::size_t first_page = 0);
  bool append_to_dock(Slot slot);
  /// Removes an application from the layout, and its folder too if that is empty afterwards.
  bool remove(std::string_view id);

  /// Moves an icon to a place; its index refers to the list without that icon. A full page pushes
  /// its last icon to the next page. Returns false and changes nothing when the dock or folder is
  /// full, or when a folder would go into a folder. A page number past the last creates a page.
  bool move(std::string_view id, const Place& to);
  /// Drops an icon on another: into it when that is a folder, otherwise both into a new folder with
  /// this title, in the target's slot.
  bool drop_on(std::string_view id, std::string_view target, std::string_view title);
  /// Moves an icon from its folder to the slot right after the folder.
  bool move_out_of_folder(std::string_view id);

  /// Removes empty pages; one page always remains. Called when a dragged icon is dropped, not while
  /// it moves.
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
