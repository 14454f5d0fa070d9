#include "host/media/tag_reader.h"

#include <aifffile.h>
#include <apetag.h>
#include <asffile.h>
#include <asfpicture.h>
#include <attachedpictureframe.h>
#include <fileref.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <mp4file.h>
#include <mpegfile.h>
#include <opusfile.h>
#include <tpropertymap.h>
#include <vorbisfile.h>
#include <wavfile.h>
#include <wavpackfile.h>
#include <xiphcomment.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <filesystem>
#include <span>

#include "host/media/adts.h"
#include "host/media/bounded_stream.h"
#include "host/media/hash.h"
#include "host/media/picture.h"
#include "host/media/plain_file.h"
#include "host/media/text.h"

namespace host::media {
namespace {

constexpr std::size_t largest_picture_bytes = 32u << 20;
constexpr double longest_file_seconds = 7 * 24 * 3600.0;

template <class Pictures>
TagLib::ByteVector best_flac_picture(const Pictures& pictures) {
  TagLib::ByteVector best;
  for (const auto* picture : pictures) {
    const bool is_front = picture->type() == TagLib::FLAC::Picture::FrontCover;
    if (best.isEmpty() || is_front) best = picture->data();
    if (is_front) break;
  }
  return best;
}

TagLib::ByteVector id3_picture(const TagLib::ID3v2::Tag* tag) {
  TagLib::ByteVector best;
  if (tag == nullptr) return best;
  for (const auto* frame : tag->frameList("APIC")) {
    const auto* picture = dynamic_cast<const TagLib::ID3v2::AttachedPictureFrame*>(frame);
    if (picture == nullptr) continue;
    const bool is_front = picture->type() == TagLib::ID3v2::AttachedPictureFrame::FrontCover;
    if (best.isEmpty() || is_front) best = picture->picture();
    if (is_front) break;
  }
  return best;
}

TagLib::ByteVector mp4_picture(const TagLib::MP4::Tag* tag) {
  if (tag == nullptr || !tag->contains("covr")) return {};
  const auto covers = tag->item("covr").toCoverArtList();
  return covers.isEmpty() ? TagLib::ByteVector{} : covers.front().data();
}

TagLib::ByteVector asf_picture(const TagLib::ASF::Tag* tag) {
  TagLib::ByteVector best;
  if (tag == nullptr) return best;
  for (const auto& attribute : tag->attribute("WM/Picture")) {
    const TagLib::ASF::Picture picture = attribute.toPicture();
    const bool is_front = picture.type() == TagLib::ASF::Picture::FrontCover;
    if (best.isEmpty() || is_front) best = picture.picture();
    if (is_front) break;
  }
  return best;
}

// The item is the name of a file, a zero byte and the picture.
TagLib::ByteVector ape_picture(const TagLib::APE::Tag* tag) {
  if (tag == nullptr) return {};
  const TagLib::ByteVector bytes = tag->itemListMap()["COVER ART (FRONT)"].binaryData();
  const int end_of_name = bytes.find('\0');
  return end_of_name < 0 ? TagLib::ByteVector{}
                         : bytes.mid(static_cast<unsigned int>(end_of_name) + 1);
}

TagLib::ByteVector picture_in(TagLib::File* file) {
  if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(file)) {
    return best_flac_picture(flac->pictureList());
  }
  if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(file)) return id3_picture(mpeg->ID3v2Tag());
  if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(file)) return id3_picture(wav->ID3v2Tag());
  if (auto* aiff = dynamic_cast<TagLib::RIFF::AIFF::File*>(file)) return id3_picture(aiff->tag());
  if (auto* asf = dynamic_cast<TagLib::ASF::File*>(file)) return asf_picture(asf->tag());
  if (auto* pack = dynamic_cast<TagLib::WavPack::File*>(file)) return ape_picture(pack->APETag());
  if (auto* mp4 = dynamic_cast<TagLib::MP4::File*>(file)) return mp4_picture(mp4->tag());
  if (auto* xiph = dynamic_cast<TagLib::Ogg::XiphComment*>(file->tag())) {
    return best_flac_picture(xiph->pictureList());
  }
  return {};
}

std::string_view view_of(const TagLib::ByteVector& bytes) {
  return {bytes.data(), bytes.size()};
}

std::span<const std::uint8_t> bytes_of(const TagLib::ByteVector& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

bool is_usable_picture(const TagLib::ByteVector& bytes) {
  return !bytes.isEmpty() && bytes.size() <= largest_picture_bytes;
}

std::string text_of(const TagLib::PropertyMap& properties, const char* key) {
  const auto found = properties.find(key);
  if (found == properties.end() || found->second.isEmpty()) return {};
  // Long text is cut before the conversion, which then costs little.
  const auto first = found->second.front().substr(0, longest_text_bytes);
  return repaired_text(first.to8Bit(true));
}

SongTags tags_from(const TagLib::PropertyMap& properties) {
  SongTags tags;
  tags.title = text_of(properties, "TITLE");
  tags.artist = text_of(properties, "ARTIST");
  tags.album_artist = text_of(properties, "ALBUMARTIST");
  tags.album = text_of(properties, "ALBUM");
  tags.genre = text_of(properties, "GENRE");
  tags.composer = text_of(properties, "COMPOSER");
  tags.track_number = number_in(text_of(properties, "TRACKNUMBER"));
  tags.disc_number = number_in(text_of(properties, "DISCNUMBER"));
  tags.is_compilation = number_in(text_of(properties, "COMPILATION")) == 1;
  tags.is_cloud = number_in(text_of(properties, "SONAVUE_CLOUD")) == 1;
  return tags;
}

TagReading refused_file(std::string reason) {
  return {std::nullopt, std::move(reason), false};
}

std::string title_from_name(const std::string& path) {
  return repaired_text(std::filesystem::path{path}.stem().string());
}

TagReading read_without_tags(const std::string& path) {
  const AdtsSound sound = read_adts(path);
  if (sound.sample_rate == 0) return refused_file("is not an audio file");
  SongTags tags;
  tags.title = title_from_name(path);
  tags.duration_seconds = std::clamp(sound.duration_seconds, 0.0, longest_file_seconds);
  return {std::move(tags), {}, false};
}

TagReading read_opened(const std::string& path) {
  BoundedStream stream{path.c_str()};
  const TagLib::FileRef reference{&stream, true, TagLib::AudioProperties::Average};
  if (reference.isNull() || !reference.file()->isValid()) return read_without_tags(path);
  const TagLib::AudioProperties* audio = reference.audioProperties();
  if (audio == nullptr || audio->sampleRate() <= 0 || audio->channels() <= 0) {
    return refused_file("contains no audio");
  }
  SongTags tags = tags_from(reference.file()->properties());
  if (tags.title.empty()) {
    tags.title = title_from_name(path);
  }
  tags.duration_seconds =
      std::clamp(audio->lengthInMilliseconds() / 1000.0, 0.0, longest_file_seconds);
  const TagLib::ByteVector picture = picture_in(reference.file());
  if (is_usable_picture(picture)) {
    tags.own_picture = read_picture_header(bytes_of(picture));
    if (tags.own_picture.is_usable()) {
      tags.own_artwork = identifier_from(stable_hash(view_of(picture)));
    }
  }
  const bool has_broken_picture = !picture.isEmpty() && tags.own_artwork == 0;
  return {std::move(tags), {}, has_broken_picture};
}

}  // namespace

TagReading read_tags(const std::string& path) {
  if (auto reason = reason_not_to_open(path); !reason.empty())
    return refused_file(std::move(reason));
  try {
    return read_opened(path);
  } catch (const std::exception& error) {
    return refused_file(std::string{"cannot be read: "} + error.what());
  }
}

std::vector<std::uint8_t> read_embedded_picture(const std::string& path) {
  if (!reason_not_to_open(path).empty()) return {};
  try {
    BoundedStream stream{path.c_str()};
    const TagLib::FileRef reference{&stream, false};
    if (reference.isNull() || !reference.file()->isValid()) return {};
    const TagLib::ByteVector picture = picture_in(reference.file());
    if (!is_usable_picture(picture)) return {};
    return {picture.begin(), picture.end()};
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace host::media
