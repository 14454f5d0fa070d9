#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <png.h>
#include <poll.h>
#include <sys/socket.h>
#include <turbojpeg.h>
#include <wslay/wslay.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "bench/screen/page.h"
#include "host/basics/message.h"
#include "host/browser/phone/messages.h"

namespace bench {
namespace {

using namespace host;
using browser::FromPage;
using browser::Part;
using browser::PartFormat;

constexpr int kBytesOfPixel = 4;
// A larger part without loss is one at rest that has been shown before.
constexpr long kMostExact = 64 * 64;
constexpr std::string_view kUpgrade =
    "GET /phone HTTP/1.1\r\nHost: localhost\r\nOrigin: http://localhost\r\nUpgrade: websocket\r\n"
    "Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
    "Sec-WebSocket-Key: AAAAAAAAAAAAAAAAAAAAAA==\r\n\r\n";

Descriptor connection_to(int port) {
  Descriptor connection(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    return {};
  const int at_once = 1;
  setsockopt(connection.get(), IPPROTO_TCP, TCP_NODELAY, &at_once, sizeof at_once);
  return connection;
}

/// Reads the head of an answer and nothing behind it.
bool read_head(int connection) {
  std::string head;
  char letter = 0;
  while (!head.ends_with("\r\n\r\n")) {
    if (recv(connection, &letter, 1, 0) != 1) return false;
    head += letter;
  }
  return head.starts_with("HTTP/1.1 101");
}

bool decode_jpeg(tjhandle decoder, const Part& part, unsigned char* pixels) {
  int width = 0, height = 0, subsampling = 0, space = 0;
  const auto* const bytes = reinterpret_cast<const unsigned char*>(part.bytes.data());
  tjDecompressHeader3(decoder, bytes, part.bytes.size(), &width, &height, &subsampling, &space);
  if (part.x + width > kSeenWidth || part.y + height > kSeenHeight) return false;
  return tjDecompress2(decoder, bytes, part.bytes.size(), pixels, width, kSeenWidth * kBytesOfPixel,
                       height, TJPF_BGRA, 0) == 0;
}

/// Returns the number of pixels, 0 for none.
long decode_png(const Part& part, unsigned char* pixels) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_memory(&image, part.bytes.data(), part.bytes.size())) return 0;
  image.format = PNG_FORMAT_BGRA;
  const auto right = part.x + static_cast<long>(image.width);
  const auto bottom = part.y + static_cast<long>(image.height);
  const bool fits = right <= kSeenWidth && bottom <= kSeenHeight;
  if (!fits || !png_image_finish_read(&image, nullptr, pixels, kSeenWidth * kBytesOfPixel, nullptr))
    return png_image_free(&image), 0;
  return static_cast<long>(image.width) * image.height;
}

class PageViewer {
 public:
  PageViewer(Seen& seen, const Address& server)
      : seen_(seen), connection_(connection_to(server.port)), decoder_(tjInitDecompress()) {
    const wslay_event_callbacks callbacks{
        &PageViewer::receive, &PageViewer::transmit, &PageViewer::mask, nullptr, nullptr, nullptr,
        &PageViewer::hear};
    wslay_event_context_client_init(&context_, &callbacks, this);
    send(connection_.get(), kUpgrade.data(), kUpgrade.size(), MSG_NOSIGNAL);
    if (!read_head(connection_.get())) return;
    say(browser::Present{server.key.data()});
    // The page has as many pixels as the device.
    say(browser::Shape{2, true});
    is_watching_ = true;
  }
  ~PageViewer() {
    wslay_event_context_free(context_);
    tjDestroy(decoder_);
  }
  PageViewer(const PageViewer&) = delete;
  PageViewer& operator=(const PageViewer&) = delete;

  void look() {
    pollfd polled{connection_.get(), POLLIN, 0};
    while (is_watching_ && poll(&polled, 1, -1) > 0) {
      if (wslay_event_recv(context_) != 0 || wslay_event_send(context_) != 0) return;
      seen_.bytes = received_bytes(connection_.get());
    }
  }

 private:
  static ssize_t result(wslay_event_context* context, ssize_t count) {
    if (count > 0) return count;
    const bool waits = count < 0 && errno == EAGAIN;
    wslay_event_set_error(context, waits ? WSLAY_ERR_WOULDBLOCK : WSLAY_ERR_CALLBACK_FAILURE);
    return -1;
  }
  static ssize_t receive(wslay_event_context* context, std::uint8_t* bytes, std::size_t size, int,
                         void* self) {
    const int connection = static_cast<PageViewer*>(self)->connection_.get();
    return result(context, recv(connection, bytes, size, MSG_DONTWAIT));
  }
  static ssize_t transmit(wslay_event_context* context, const std::uint8_t* bytes, std::size_t size,
                          int, void* self) {
    const int connection = static_cast<PageViewer*>(self)->connection_.get();
    return result(context, ::send(connection, bytes, size, MSG_NOSIGNAL));
  }
  static int mask(wslay_event_context*, std::uint8_t* bytes, std::size_t size, void*) {
    std::fill_n(bytes, size, std::uint8_t{0x5a});
    return 0;
  }
  static void hear(wslay_event_context*, const wslay_event_on_msg_recv_arg* got, void* self) {
    auto& viewer = *static_cast<PageViewer*>(self);
    const auto message =
        message_from<browser::ToPage>({reinterpret_cast<const char*>(got->msg), got->msg_length});
    if (!message || std::holds_alternative<browser::Refused>(*message)) viewer.is_watching_ = false;
    if (const auto* part = message ? std::get_if<Part>(&*message) : nullptr) viewer.show(*part);
  }

  void say(const FromPage& message) {
    const std::string bytes = message_bytes(message);
    const wslay_event_msg queued{WSLAY_BINARY_FRAME,
                                 reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
    wslay_event_queue_msg(context_, &queued);
    wslay_event_send(context_);
  }

  void show(const Part& part) {
    if (part.width != kSeenWidth || part.height != kSeenHeight || part.x < 0 || part.y < 0) return;
    auto* const pixels =
        reinterpret_cast<unsigned char*>(seen_.pixels.data() + part.y * kSeenWidth + part.x);
    if (part.format == PartFormat::Jpeg) {
      has_changed_ |= decode_jpeg(decoder_, part, pixels);
    } else {
      const long count = decode_png(part, pixels);
      has_changed_ |= count > 0 && count <= kMostExact;
    }
    if (!part.is_last) return;
    if (has_changed_) ++seen_.updates;
    has_changed_ = false;
    say(browser::Shown{part.picture});
  }

  Seen& seen_;
  const Descriptor connection_;
  const tjhandle decoder_;
  wslay_event_context* context_ = nullptr;
  bool is_watching_ = false;
  bool has_changed_ = false;
};

}  // namespace

void look_as_page(Seen& seen, const Address& server) {
  PageViewer(seen, server).look();
}

}  // namespace bench
