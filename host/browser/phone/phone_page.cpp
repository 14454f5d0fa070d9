#include "host/browser/phone/phone_page.h"

#include <utility>

#include "host/basics/message.h"
#include "host/browser/access/loopback.h"
#include "host/browser/page/page_files.h"
#include "host/browser/phone/body_picture.h"
#include "host/runtime/log.h"

namespace host::browser {
namespace {

constexpr std::size_t kMostVisitors = 8;
// In seconds, for saying who it is, and for leaving.
constexpr double kVisit = 10;
/// Among the observers of a turn's end: after drawing.
constexpr int kAfterDrawing = 300;

std::vector<PageFile> files_with(std::string_view body_picture) {
  std::vector<PageFile> files(page_files().begin(), page_files().end());
  files.push_back({"/body.svg", "image/svg+xml", body_picture});
  return files;
}

}  // namespace

PhonePage::PhonePage(RunLoop& loop, int listener, std::unique_ptr<Access> access,
                     const screen::PhoneBody& body, double device_pixels_per_point,
                     screen::Input& input, std::function<void(const std::string&)> offer)
    : loop_(loop),
      listener_(listener),
      access_(std::move(access)),
      body_(body),
      input_(input),
      offer_(std::move(offer)),
      screen_(loop, device_pixels_per_point, [this](const Part& part) { send(part); }),
      page_input_(body, input),
      body_picture_(picture_of(body)),
      files_(files_with(body_picture_)),
      turns_(loop.add_turn_observer(kAfterDrawing,
                                    [this] {
                                      follow_caret();
                                      tell_views();
                                    })),
      server_(loop, listener, files_, [this](Descriptor connection, std::string early) {
        receive_visitor(std::move(connection), std::move(early));
      }) {}

PhonePage::~PhonePage() {
  loop_.remove_turn_observer(turns_);
  if (return_timer_) loop_.remove_timer(return_timer_);
  while (!visitors_.empty())
    dismiss(visitors_.begin());
}

void PhonePage::send(const ToPage& message) {
  if (page_) page_->send(message_bytes(message));
}

void PhonePage::receive_visitor(Descriptor connection, std::string early) {
  if (visitors_.size() >= kMostVisitors) {
    if (crowd_.is_due())
      spdlog::warn("browser: more than {} visitors at once: others are turned away", kMostVisitors);
    return;
  }
  const Place visitor = visitors_.emplace(visitors_.end());
  visitor->timer = loop_.add_timer(loop_.now() + kVisit, 0, [this, visitor] {
    visitor->timer = 0;
    dismiss(visitor);
  });
  visitor->socket = std::make_unique<PageSocket>(
      loop_, std::move(connection), std::move(early),
      PageSocket::Events{[this, visitor](std::string_view bytes) { hear_visitor(visitor, bytes); },
                         [this, visitor](const std::string&) { dismiss(visitor); }});
}

void PhonePage::dismiss(Place visitor) {
  if (visitor->timer) loop_.remove_timer(visitor->timer);
  visitors_.erase(visitor);
}

void PhonePage::hear_visitor(Place visitor, std::string_view bytes) {
  const auto message = message_from<FromPage>(bytes);
  const auto* present = message ? std::get_if<Present>(&*message) : nullptr;
  if (!present) return dismiss(visitor);
  if (const auto secret = access_->admit(present->key)) return let_in(visitor, *secret);
  if (wrong_key_.is_due())
    spdlog::warn("browser: a page with a link that is not valid was turned away");
  visitor->socket->set_events({{}, [this, visitor](const std::string&) { dismiss(visitor); }});
  refuse(*visitor->socket, page_ ? Reason::OpenElsewhere : Reason::UsedLink);
}

void PhonePage::refuse(PageSocket& socket, Reason reason) {
  socket.send(message_bytes(ToPage(Refused{reason})));
  socket.close();
}

// The page that was here is another tab, or a connection that has died without a word.
void PhonePage::let_in(Place visitor, const std::string& secret) {
  std::swap(page_, visitor->socket);
  if (visitor->socket) {
    page_input_.let_go();
    visitor->socket->set_events({{}, [this, visitor](const std::string&) { dismiss(visitor); }});
    refuse(*visitor->socket, Reason::MovedAway);
  } else {
    dismiss(visitor);
  }
  if (return_timer_) loop_.remove_timer(std::exchange(return_timer_, 0));
  page_->set_events({[this](std::string_view bytes) { hear_page(bytes); },
                     [this](const std::string& reason) { lose_page(reason); }});
  const CGRect screen = body_.screen();
  send(Welcome{secret, body_.size().width, body_.size().height, screen.min_x(), screen.min_y(),
               screen.size.width, screen.size.height});
  send(song_);
  caret_.reset();
  asks_views_ = false;
  asked_description_.reset();
  screen_.connect();
}

void PhonePage::hear_page(std::string_view bytes) {
  const auto message = message_from<FromPage>(bytes);
  if (!message) {
    lose_page("sends an invalid message");
    return;
  }
  std::visit([this](const auto& one) { hear(one); }, *message);
}

void PhonePage::lose_page(const std::string& reason) {
  if (!reason.empty()) spdlog::warn("browser: the page {}: disconnected", reason);
  page_.reset();
  screen_.disconnect();
  page_input_.let_go();
  if (return_timer_) loop_.remove_timer(return_timer_);
  return_timer_ = loop_.add_timer(loop_.now() + kReturn, 0, [this] {
    return_timer_ = 0;
    offer_link();
  });
}

void PhonePage::offer_link() {
  if (access_->token().empty() && !access_->renew()) return;
  if (const auto link = link_to(listener_, access_->token())) offer_(*link);
}

void PhonePage::set_song(Song song) {
  song_ = std::move(song);
  send(song_);
}

void PhonePage::follow_caret() {
  if (!page_) return;
  const auto caret = input_.caret();
  if (caret == caret_) return;
  caret_ = caret;
  const CGRect place = caret.value_or(CGRect());
  send(Caret{caret.has_value(), place.min_x(), place.min_y(), place.size.width, place.size.height});
}

// At the end of a turn, when views have their places, and at most once in each: a page that asks
// without end does not hold up the phone.
void PhonePage::tell_views() {
  if (!page_ || !views_) return;
  if (std::exchange(asks_views_, false)) send(views_->views());
  if (const auto view = std::exchange(asked_description_, std::nullopt))
    send(Description{*view, views_->description(*view)});
}

}  // namespace host::browser
