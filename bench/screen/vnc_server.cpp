#include <arpa/inet.h>
#include <rfb/rfb.h>

#include <cstring>
#include <vector>

#include "bench/screen/vnc.h"
#include "bench/support/require.h"

namespace bench {
namespace {

using namespace host;

constexpr int kBytesOfPixel = 4;

class VncServer final : public ScreenServer, public screen::Screen {
 public:
  VncServer() {
    require(server_ != nullptr, "a VNC server");
    server_->frameBuffer = reinterpret_cast<char*>(pixels_.data());
    server_->listenInterface = htonl(INADDR_LOOPBACK);
    server_->autoPort = TRUE;
    server_->cursor = nullptr;
    // The phone's pixels as they are.
    server_->serverFormat.redShift = 16;
    server_->serverFormat.greenShift = 8;
    server_->serverFormat.blueShift = 0;
    rfbInitServer(server_);
    require(server_->port > 0, "a port for the VNC server");
    rfbRunEventLoop(server_, -1, TRUE);
  }
  ~VncServer() override {
    rfbShutdownServer(server_, TRUE);
    rfbScreenCleanup(server_);
  }

  screen::Screen& screen() override { return *this; }
  Address address() const override { return {server_->port, {}}; }

  void show(const screen::Picture& picture, std::span<const PixelRect> damage) override {
    needs_everything_ = false;
    for (const PixelRect& part : damage) {
      for (int y = part.y; y < part.y + part.height; ++y)
        std::memcpy(&pixels_[static_cast<std::size_t>(y * kSeenWidth + part.x)],
                    picture.pixels + y * picture.stride + part.x * kBytesOfPixel,
                    static_cast<std::size_t>(part.width) * kBytesOfPixel);
      rfbMarkRectAsModified(server_, part.x, part.y, part.x + part.width, part.y + part.height);
    }
  }
  bool needs_everything() const override { return needs_everything_; }

 private:
  std::vector<std::uint32_t> pixels_ =
      std::vector<std::uint32_t>(std::size_t{kSeenWidth} * kSeenHeight);
  rfbScreenInfo* const server_ =
      rfbGetScreen(nullptr, nullptr, kSeenWidth, kSeenHeight, 8, 3, kBytesOfPixel);
  bool needs_everything_ = true;
};

}  // namespace

std::unique_ptr<ScreenServer> serve_vnc() {
  rfbLogEnable(0);
  return std::make_unique<VncServer>();
}

}  // namespace bench
