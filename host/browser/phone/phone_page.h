#pragma once

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>

#include "host/browser/access/access.h"
#include "host/browser/phone/page_input.h"
#include "host/browser/phone/page_screen.h"
#include "host/browser/phone/view_source.h"
#include "host/browser/web/complaint.h"
#include "host/browser/web/page_socket.h"
#include "host/browser/web/server.h"

namespace host::browser {

/// The phone in a browser of this machine: one page at a time shows it and touches it. A page that
/// has come by the link comes back by its secret, after a reload of the page or a restart of the
/// home screen. When the page has gone for good, there is a new link.
class PhonePage {
 public:
  /// The time in seconds that a page has for coming back before there is a new link.
  static constexpr double kReturn = 15;

  /// `body` and `input` outlive this object; so does the listener, which does not block. `offer` is
  /// called with each new link.
  PhonePage(RunLoop& loop, int listener, std::unique_ptr<Access> access,
            const screen::PhoneBody& body, double device_pixels_per_point, screen::Input& input,
            std::function<void(const std::string& link)> offer);
  ~PhonePage();
  PhonePage(const PhonePage&) = delete;
  PhonePage& operator=(const PhonePage&) = delete;

  screen::Screen& screen() { return screen_; }
  /// Tells what plays; an empty title for nothing.
  void set_song(Song song);
  /// What the page is answered when it asks for the views. It outlives this object, or is replaced
  /// by null; until there is one, the page waits.
  void set_views(ViewSource* views) { views_ = views; }
  /// Makes a new link, for a user who asks for the phone again.
  void offer_link();
  bool is_seen() const { return screen_.is_watched(); }
  /// While it sleeps, what the page's user does is ignored.
  void set_awake(bool is_awake) { is_awake_ = is_awake; }

 private:
  struct Visitor {
    std::unique_ptr<PageSocket> socket;
    RunLoop::Id timer = 0;
  };
  using Place = std::list<Visitor>::iterator;

  void receive_visitor(Descriptor connection, std::string early);
  void hear_visitor(Place visitor, std::string_view bytes);
  void dismiss(Place visitor);
  void refuse(PageSocket& socket, Reason reason);
  void let_in(Place visitor, const std::string& secret);
  void hear_page(std::string_view bytes);
  void lose_page(const std::string& reason);
  void hear(const AskViews&) { asks_views_ = true; }
  void hear(const AskDescription& asked) { asked_description_ = asked.view; }
  void hear(const Shape& shape) { screen_.take(shape); }
  void hear(const Shown& shown) { screen_.take(shown); }
  void hear(const Present&) {}
  template <class Action>
  void hear(const Action& action) {
    if (is_awake_) page_input_.take(action);
  }
  void follow_caret();
  void tell_views();
  void send(const ToPage& message);

  RunLoop& loop_;
  const int listener_;
  const std::unique_ptr<Access> access_;
  const screen::PhoneBody& body_;
  screen::Input& input_;
  const std::function<void(const std::string&)> offer_;
  PageScreen screen_;
  PageInput page_input_;
  std::string body_picture_;
  std::vector<PageFile> files_;
  std::list<Visitor> visitors_;
  std::unique_ptr<PageSocket> page_;
  Song song_;
  std::optional<CGRect> caret_;
  ViewSource* views_ = nullptr;
  bool asks_views_ = false;
  std::optional<std::uint32_t> asked_description_;
  bool is_awake_ = true;
  RunLoop::Id return_timer_ = 0;
  RunLoop::Id turns_;
  Complaint crowd_{loop_};
  Complaint wrong_key_{loop_};
  Server server_;
};

}  // namespace host::browser
