#pragma once

#include <optional>
#include <vector>

#include "host/runtime/countdown.h"
#include "host/uikit/keyboard/keyboard_typing.h"
#include "host/uikit/keyboard/keyplane_view.h"

namespace host::uikit {

/// Turns fingers on a keyboard into key presses: balloons above pressed letters, sliding from key
/// to key, repeating backspace, accents on a long press, and fast typing, where the next finger
/// lands before the previous one lifts.
class KeyTouches final : public KeyplaneFingers {
 public:
  KeyTouches(KeyboardTyping& typing, std::function<void()> on_dismiss)
      : typing_(typing), on_dismiss_(std::move(on_dismiss)) {}

  /// The keys that are touched; not retained.
  void set_view(KeyplaneView* view) { view_ = view; }
  /// Other keys are shown: the keys under the fingers no longer exist.
  void keys_changed();
  /// Forgets all fingers: they type nothing more.
  void stop();

  void began(UITouch touch, CGPoint point) override;
  void moved(UITouch touch, CGPoint point) override;
  void ended(UITouch touch) override;
  void cancelled(UITouch touch) override;

 private:
  struct Press {
    UITouch touch;
    /// The key that the finger landed on.
    KeyKind kind = KeyKind::Nothing;
    /// The key that the finger is on, if lifting it there has an effect.
    std::optional<std::size_t> key;
    /// The plane shown before the finger landed on a plane key.
    std::optional<KeyPlane> plane_before;
    bool chooses_accent = false;
  };

  Press* press_of(UITouch touch);
  void land(Press& press, std::size_t index);
  void put_on(Press& press, std::optional<std::size_t> index);
  void show_pressed(const Press& press);
  void show_resting(const Press& press);
  void offer_accents(UITouch touch);
  void commit(Press press);
  void commit_others();
  void repeat_backspace();
  bool has_previews() const;

  KeyboardTyping& typing_;
  std::function<void()> on_dismiss_;
  KeyplaneView* view_ = nullptr;
  std::vector<Press> presses_;
  /// For the newest press only.
  Countdown hold_;
};

}  // namespace host::uikit
