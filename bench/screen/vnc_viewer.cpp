#include <rfb/rfbclient.h>

#include <cstring>

#include "bench/screen/vnc.h"

namespace bench {
namespace {

constexpr int kQuality = 6;
constexpr int kCompression = 2;
constexpr unsigned kPatience = 1'000'000;  // in microseconds

Seen* shown = nullptr;

rfbBool use_seen_pixels(rfbClient* client) {
  if (client->width != kSeenWidth || client->height != kSeenHeight) return FALSE;
  client->frameBuffer = reinterpret_cast<std::uint8_t*>(shown->pixels.data());
  return TRUE;
}

void count_update(rfbClient*) {
  ++shown->updates;
}

}  // namespace

void look_as_vnc(Seen& seen, const Address& server) {
  shown = &seen;
  rfbEnableClientLogging = FALSE;
  rfbClient* const client = rfbGetClient(8, 3, 4);
  client->format.redShift = 16;
  client->format.greenShift = 8;
  client->format.blueShift = 0;
  client->appData.encodingsString = "copyrect tight hextile rre raw";
  client->appData.compressLevel = kCompression;
  client->appData.qualityLevel = kQuality;
  client->appData.enableJPEG = TRUE;
  client->MallocFrameBuffer = &use_seen_pixels;
  client->FinishedFrameBufferUpdate = &count_update;
  client->serverHost = strdup("127.0.0.1");
  client->serverPort = server.port;
  if (!rfbInitClient(client, nullptr, nullptr)) return;
  for (;;) {
    const int waiting = WaitForMessage(client, kPatience);
    if (waiting < 0 || (waiting > 0 && !HandleRFBServerMessage(client))) return;
    seen.bytes = received_bytes(client->sock);
  }
}

}  // namespace bench
