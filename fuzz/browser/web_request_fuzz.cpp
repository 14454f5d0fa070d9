#include <array>
#include <cstdint>
#include <cstdlib>

#include "host/browser/web/answer.h"

using namespace host::browser;

namespace {

constexpr std::array kFiles{PageFile{"/", "text/html", "<p>"}};

}  // namespace

/// Checks that a request is read alike in one piece and byte by byte, and that only a page of this
/// machine gets more than a refusal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  RequestReader whole;
  const auto state = whole.append(bytes);
  RequestReader pieces;
  auto piecewise = RequestReader::State::kIncomplete;
  for (std::size_t i = 0; i < size && piecewise == RequestReader::State::kIncomplete; ++i)
    piecewise = pieces.append(bytes.substr(i, 1));
  const bool is_complete = state == RequestReader::State::kComplete;
  if (size < RequestReader::kLongestHead &&
      is_complete != (piecewise == RequestReader::State::kComplete))
    std::abort();
  if (!is_complete) return 0;
  const Request& request = whole.request();
  if (request.header("host") != pieces.request().header("host")) std::abort();
  if (refusal(request)) return 0;
  const Answer made = request.wants_socket() ? handshake(request) : answer(request, kFiles);
  constexpr int kSwitchingProtocols = 101;
  if (made.status == kSwitchingProtocols &&
      request.header("origin") != "http://" + std::string(request.header("host")))
    std::abort();
  return 0;
}
