#include "tests/support/media_fixtures.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <spdlog/sinks/base_sink.h>
#include <spdlog/spdlog.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <numbers>
#include <stdexcept>
#include <utility>

#include "host/demo_music/audio_file.h"
#include "host/media/tag_writer.h"

namespace media_tests {
namespace {

constexpr int tone_rate = 16000;

std::vector<std::uint8_t> encoded(int width, int height, std::uint32_t rgb, const char* type) {
  GdkPixbuf* pixbuf = gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, width, height);
  gdk_pixbuf_fill(pixbuf, rgb << 8 | 0xff);
  gchar* buffer = nullptr;
  gsize size = 0;
  gdk_pixbuf_save_to_buffer(pixbuf, &buffer, &size, type, nullptr, nullptr);
  g_object_unref(pixbuf);
  std::vector<std::uint8_t> bytes(buffer, buffer + size);
  g_free(buffer);
  return bytes;
}

void append_word(std::string& bytes, std::uint32_t word) {
  for (int shift = 24; shift >= 0; shift -= 8)
    bytes += static_cast<char>(word >> shift & 0xff);
}

std::uint32_t png_checksum(std::string_view bytes) {
  std::uint32_t sum = 0xffffffffu;
  for (const unsigned char byte : bytes) {
    sum ^= byte;
    for (int bit = 0; bit < 8; ++bit)
      sum = sum >> 1 ^ ((sum & 1u) != 0 ? 0xedb88320u : 0u);
  }
  return ~sum;
}

void append_chunk(std::string& bytes, std::string_view type, std::string_view content) {
  append_word(bytes, static_cast<std::uint32_t>(content.size()));
  std::string checked{type};
  checked += content;
  bytes += checked;
  append_word(bytes, png_checksum(checked));
}

void encode_tone(const std::string& path, double seconds) {
  // Eleven periods of the tone, after which it repeats itself.
  std::array<float, tone_rate * 11 / 440> periods;
  for (std::size_t i = 0; i < periods.size(); ++i) {
    const double phase = 2 * std::numbers::pi * 440.0 * static_cast<double>(i) / tone_rate;
    periods[i] = static_cast<float>(0.2 * std::sin(phase));
  }
  std::vector<float> samples(static_cast<std::size_t>(seconds * tone_rate));
  for (std::size_t i = 0; i < samples.size(); ++i)
    samples[i] = periods[i % periods.size()];
  if (!host::media::write_audio(path, samples, tone_rate)) {
    throw std::runtime_error{"cannot write " + path};
  }
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "media-test-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr)
    throw std::runtime_error{"cannot create a temporary folder"};
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

struct CapturedLog::State {
  class Sink final : public spdlog::sinks::base_sink<std::mutex> {
   public:
    std::vector<std::string> lines;

   protected:
    void sink_it_(const spdlog::details::log_msg& message) override {
      lines.emplace_back(message.payload.data(), message.payload.size());
    }
    void flush_() override {}
  };

  std::shared_ptr<Sink> sink = std::make_shared<Sink>();
  std::shared_ptr<spdlog::logger> before = spdlog::default_logger();
};

CapturedLog::CapturedLog() : state_(new State) {
  spdlog::set_default_logger(std::make_shared<spdlog::logger>("captured", state_->sink));
}

CapturedLog::~CapturedLog() {
  spdlog::set_default_logger(state_->before);
  delete state_;
}

int CapturedLog::count(std::string_view text) const {
  int found = 0;
  for (const std::string& line : state_->sink->lines)
    found += line.find(text) != line.npos;
  return found;
}

void write_tone(const std::string& path, double seconds) {
  // Songs of one length are the same tone: encoding it is most of the work.
  static std::map<std::pair<std::string, double>, std::string> written;
  std::string& bytes = written[{std::filesystem::path{path}.extension(), seconds}];
  if (bytes.empty()) {
    encode_tone(path, seconds);
    bytes = read_bytes(path);
  } else {
    write_bytes(path, bytes);
  }
}

void write_song(const std::string& path, const host::media::SongTags& tags,
                const std::vector<std::uint8_t>& jpeg, double seconds) {
  write_tone(path, seconds);
  if (!host::media::write_tags(path, tags, jpeg)) throw std::runtime_error{"cannot tag " + path};
}

void write_bytes(const std::string& path, std::string_view bytes) {
  std::ofstream{path, std::ios::binary} << bytes;
}

std::string read_bytes(const std::string& path) {
  std::ifstream file{path, std::ios::binary};
  return {std::istreambuf_iterator<char>{file}, {}};
}

void truncate_file(const std::string& path, std::uintmax_t size) {
  std::filesystem::resize_file(path, size);
}

std::vector<std::uint8_t> jpeg_picture(int width, int height, std::uint32_t rgb) {
  return encoded(width, height, rgb, "jpeg");
}

std::vector<std::uint8_t> png_picture(int width, int height, std::uint32_t rgb) {
  return encoded(width, height, rgb, "png");
}

std::vector<std::uint8_t> png_promise(std::uint32_t width, std::uint32_t height) {
  std::string bytes = "\x89PNG\r\n\x1a\n";
  std::string header;
  append_word(header, width);
  append_word(header, height);
  header.append({8, 6, 0, 0, 0});
  append_chunk(bytes, "IHDR", header);
  append_chunk(bytes, "IDAT", "x");
  return {bytes.begin(), bytes.end()};
}

}  // namespace media_tests
