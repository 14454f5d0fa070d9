#pragma once

#include "platform/Foundation/NSString.h"
#include "tweak/search/grown_array.h"

namespace sonavue {

using Bytes = GrownArray<unsigned char>;

/// Is it a letter or sign that stands for itself alone: no combining mark, and spelt otherwise only
/// with one? A text of such letters is found in another one of them exactly where their units say
/// so, which for all others only the platform knows.
bool is_plain(unichar letter);

/// Turns texts into the bytes of their lower case, for as long as they are plain: as they are, or
/// with each mark and its letter in one piece.
class PlainTextWriter {
 public:
  /// Adds the lower case of the text as UTF-8; false, with nothing added, when it is not plain.
  bool add_lowercase(NSString text, Bytes& bytes);

 private:
  bool read(NSString text);
  bool is_ascii() const;
  bool has_marks() const;
  bool write(Bytes& bytes) const;

  GrownArray<unichar> units_;
};

}  // namespace sonavue
