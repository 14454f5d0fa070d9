#include "tweak/search/plain_text.h"

#include "platform/Foundation/NSStringMapping.h"

namespace sonavue {
namespace {

constexpr unichar kAsciiEnd = 0x80;
constexpr unichar kTwoBytesEnd = 0x800;

struct Letters {
  unichar first;
  unichar last;
};

// Symbols and Latin without the soft hyphen, Greek, Cyrillic, dashes and quotation marks, kana, and
// the common ideographs.
constexpr Letters kPlainLetters[] = {{0x20, 0x7e},     {0xa0, 0xac},     {0xae, 0x2ff},
                                     {0x391, 0x3c9},   {0x400, 0x482},   {0x2013, 0x2026},
                                     {0x3041, 0x3096}, {0x30a1, 0x30fa}, {0x4e00, 0x9fff}};

// Combining accents, and the voicing marks of kana.
constexpr Letters kMarks[] = {{0x300, 0x36f}, {0x3099, 0x309a}};

unichar ascii_lowercase(unichar letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<unichar>(letter + ('a' - 'A')) : letter;
}

void add_utf8(unichar letter, Bytes& bytes) {
  const auto tail = [](int bits) { return static_cast<unsigned char>(0x80 | (bits & 0x3f)); };
  if (letter < kAsciiEnd) {
    bytes.add(static_cast<unsigned char>(letter));
  } else if (letter < kTwoBytesEnd) {
    bytes.add(static_cast<unsigned char>(0xc0 | letter >> 6));
    bytes.add(tail(letter));
  } else {
    bytes.add(static_cast<unsigned char>(0xe0 | letter >> 12));
    bytes.add(tail(letter >> 6));
    bytes.add(tail(letter));
  }
}

}  // namespace

bool is_plain(unichar letter) {
  for (const Letters& range : kPlainLetters) {
    if (letter <= range.last) return letter >= range.first;
  }
  return false;
}

bool PlainTextWriter::read(NSString text) {
  units_.clear();
  units_.resize(text.length());
  if (units_.has_failed()) return false;
  text.getCharacters(units_.begin(), {0, units_.count()});
  return true;
}

bool PlainTextWriter::is_ascii() const {
  for (const unichar unit : units_) {
    if (unit >= kAsciiEnd) return false;
  }
  return true;
}

bool PlainTextWriter::has_marks() const {
  for (const unichar unit : units_) {
    for (const Letters& marks : kMarks) {
      if (unit >= marks.first && unit <= marks.last) return true;
    }
  }
  return false;
}

bool PlainTextWriter::write(Bytes& bytes) const {
  const std::size_t before = bytes.count();
  for (const unichar unit : units_) {
    if (!is_plain(unit)) {
      bytes.resize(before);
      return false;
    }
    add_utf8(ascii_lowercase(unit), bytes);
  }
  return !bytes.has_failed();
}

// The check for plain letters is done on the lower case, since a capital may become several letters
// or a letter of another script. ASCII is lowercased here, which saves most titles a string. Marks
// are composed with their letters; the platform's search finds the same either way.
bool PlainTextWriter::add_lowercase(NSString text, Bytes& bytes) {
  if (!read(text)) return false;
  if (is_ascii()) return write(bytes);
  const auto lower = objc::cast<NSStringMapping>(text.lowercaseString());
  if (!read(lower)) return false;
  if (has_marks() && !read(lower.precomposedStringWithCanonicalMapping())) return false;
  return write(bytes);
}

}  // namespace sonavue
