#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace host::media {

inline constexpr std::array<std::string_view, 13> audio_suffixes = {
    ".flac", ".mp3",  ".ogg",  ".oga", ".opus", ".m4a", ".wav",
    ".aif",  ".aiff", ".aifc", ".wma", ".aac",  ".wv"};
// The same kinds as desktops call them, which have several names for most.
inline constexpr std::array audio_types = {
    "audio/flac",     "audio/x-flac",     "audio/mpeg",     "audio/ogg",    "audio/x-vorbis+ogg",
    "audio/opus",     "audio/x-opus+ogg", "audio/mp4",      "audio/x-m4a",  "audio/wav",
    "audio/x-wav",    "audio/vnd.wave",   "audio/aiff",     "audio/x-aiff", "audio/x-aifc",
    "audio/x-ms-wma", "audio/aac",        "audio/x-wavpack"};
inline constexpr std::string_view cloud_suffix = ".cloud.toml";

// Changes the letters A to Z only.
inline std::string in_small_letters(std::string_view text) {
  std::string small{text};
  for (char& letter : small) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
  }
  return small;
}

// The last dot and what follows; empty for a name without one, or with no other.
inline std::string_view suffix_of(std::string_view name) {
  const auto dot = name.rfind('.');
  return dot == std::string_view::npos || dot == 0 ? std::string_view{} : name.substr(dot);
}

// Whether a file of this name is worth opening: FLAC, MP3, Ogg Vorbis, Opus, M4A, WAV, AIFF, WMA,
// AAC and WavPack.
inline bool has_audio_name(std::string_view name) {
  const std::string suffix = in_small_letters(suffix_of(name));
  return std::ranges::find(audio_suffixes, suffix) != audio_suffixes.end();
}

// Whether a file of this name describes a song that is only in the cloud.
inline bool has_cloud_name(std::string_view name) {
  return name.size() > cloud_suffix.size() && name.ends_with(cloud_suffix);
}

inline bool is_song_name(std::string_view name) {
  return has_audio_name(name) || has_cloud_name(name);
}

}  // namespace host::media
