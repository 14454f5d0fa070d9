#include "host/media/tag_writer.h"

#include <aifffile.h>
#include <apetag.h>
#include <asffile.h>
#include <asfpicture.h>
#include <attachedpictureframe.h>
#include <fileref.h>
#include <flacfile.h>
#include <flacpicture.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <tpropertymap.h>
#include <wavfile.h>
#include <wavpackfile.h>
#include <xiphcomment.h>

#include <exception>

namespace host::media {
namespace {

TagLib::PropertyMap properties_of(const SongTags& tags) {
  TagLib::PropertyMap properties;
  auto put = [&properties](const char* key, const std::string& text) {
    if (!text.empty()) properties[key] = TagLib::String{text, TagLib::String::UTF8};
  };
  auto put_number = [&put](const char* key, int number) {
    if (number > 0) put(key, std::to_string(number));
  };
  put("TITLE", tags.title);
  put("ARTIST", tags.artist);
  put("ALBUMARTIST", tags.album_artist);
  put("ALBUM", tags.album);
  put("GENRE", tags.genre);
  put("COMPOSER", tags.composer);
  put_number("TRACKNUMBER", tags.track_number);
  put_number("DISCNUMBER", tags.disc_number);
  put_number("COMPILATION", tags.is_compilation ? 1 : 0);
  put_number("SONAVUE_CLOUD", tags.is_cloud ? 1 : 0);
  return properties;
}

void add_id3_picture(TagLib::ID3v2::Tag* tag, const TagLib::ByteVector& jpeg) {
  auto* frame = new TagLib::ID3v2::AttachedPictureFrame;  // The tag owns it.
  frame->setMimeType("image/jpeg");
  frame->setType(TagLib::ID3v2::AttachedPictureFrame::FrontCover);
  frame->setPicture(jpeg);
  tag->addFrame(frame);
}

TagLib::FLAC::Picture* new_flac_picture(const TagLib::ByteVector& jpeg) {
  auto* picture = new TagLib::FLAC::Picture;  // The file or comment it is added to owns it.
  picture->setMimeType("image/jpeg");
  picture->setType(TagLib::FLAC::Picture::FrontCover);
  picture->setData(jpeg);
  return picture;
}

TagLib::ASF::Picture new_asf_picture(const TagLib::ByteVector& jpeg) {
  TagLib::ASF::Picture picture;
  picture.setMimeType("image/jpeg");
  picture.setType(TagLib::ASF::Picture::FrontCover);
  picture.setPicture(jpeg);
  return picture;
}

void add_picture(TagLib::File* file, const TagLib::ByteVector& jpeg) {
  if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(file)) {
    flac->addPicture(new_flac_picture(jpeg));
  } else if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(file)) {
    add_id3_picture(mpeg->ID3v2Tag(true), jpeg);
  } else if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(file)) {
    add_id3_picture(wav->ID3v2Tag(), jpeg);
  } else if (auto* aiff = dynamic_cast<TagLib::RIFF::AIFF::File*>(file)) {
    add_id3_picture(aiff->tag(), jpeg);
  } else if (auto* asf = dynamic_cast<TagLib::ASF::File*>(file)) {
    asf->tag()->addAttribute("WM/Picture", new_asf_picture(jpeg));
  } else if (auto* pack = dynamic_cast<TagLib::WavPack::File*>(file)) {
    const TagLib::ByteVector name("cover.jpg", sizeof "cover.jpg");
    pack->APETag(true)->setData("COVER ART (FRONT)", name + jpeg);
  } else if (auto* xiph = dynamic_cast<TagLib::Ogg::XiphComment*>(file->tag())) {
    xiph->addPicture(new_flac_picture(jpeg));
  }
}

}  // namespace

bool write_tags(const std::string& path, const SongTags& tags, std::span<const std::uint8_t> jpeg) {
  try {
    TagLib::FileRef reference{path.c_str(), false};
    if (reference.isNull()) return false;
    reference.file()->setProperties(properties_of(tags));
    if (!jpeg.empty()) {
      add_picture(reference.file(), {reinterpret_cast<const char*>(jpeg.data()),
                                     static_cast<unsigned int>(jpeg.size())});
    }
    return reference.save();
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace host::media
