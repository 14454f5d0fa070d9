#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/runtime/run_loop.h"
#include "host/springboard/home/folder_presenter.h"

namespace host::springboard {

/// Drags one icon in editing mode: a copy of its image follows the finger while the other icons
/// make room. The target is decided once the finger has rested in one place for a moment.
class IconDrag {
 public:
  IconDrag(HomeScreen& home, IconModel& model, FolderPresenter& folders);
  ~IconDrag();
  IconDrag(const IconDrag&) = delete;
  IconDrag& operator=(const IconDrag&) = delete;

  bool is_active() const { return static_cast<bool>(icon_view_); }
  bool carries(SBIconView icon_view) const { return is_active() && *icon_view_ == icon_view; }
  /// Points are in the window's coordinates.
  void begin(SBIconView icon_view, CGPoint point);
  void move(CGPoint point);
  /// Drops the icon at its target and saves the arrangement to the device.
  void end();

 private:
  enum class Intent { kStay, kMove, kDrop, kTurnBack, kTurnForward, kLeaveFolder };
  struct Aim {
    Intent intent = Intent::kStay;
    Place place;
    std::string target;  ///< Of a drop: the identifier of the icon below.
    friend bool operator==(const Aim&, const Aim&) = default;
  };

  Aim aim_at(CGPoint finger, CGPoint centre) const;
  Aim aim_in_folder(CGPoint centre) const;
  Aim aim_in_dock(CGPoint centre) const;
  Aim aim_on_page(CGPoint centre) const;
  Aim move_to(Place place) const;
  bool may_drop_on(const Slot& slot, CGPoint slot_centre, CGPoint centre) const;
  void take_aim(Aim aim);
  void aim_rested();
  void move_icon(const Place& place);
  void turn_page(std::size_t page);
  void set_target_raised(bool raised);
  void stop_waiting();
  void settle();

  HomeScreen& home_;
  IconModel& model_;
  FolderPresenter& folders_;
  objc::Ref<SBIconView> icon_view_;
  objc::Ref<UIView> carried_;
  std::string id_;
  CGSize grip_;  ///< The offset from the finger to the centre of the dragged image.
  CGPoint finger_;
  Aim aim_;
  bool target_raised_ = false;
  std::optional<RunLoop::Id> waiting_;
};

}  // namespace host::springboard
