#pragma once

#include "platform/Foundation/NSString.h"
#include "tweak/search/grown_array.h"

namespace sonavue {

using Bytes = GrownArray<unsigned char>;

/// Whether the letter or symbol is not a combining mark and has no other spelling, except with a
/// combining mark. A text of plain letters can be found in another one by comparing code units; for
/// all other texts only the platform's search is right.
bool is_plain(unichar letter);

/// Converts plain texts to lower case as bytes. A text counts as plain if it is so after each
/// combining mark has been composed with its letter.
class PlainTextWriter {
 public:
  /// Appends the text in lower case as UTF-8. If the text is not plain, appends nothing and returns
  /// false.
  bool add_lowercase(NSString text, Bytes& bytes);

 private:
  bool read(NSString text);
  bool is_ascii() const;
  bool has_marks() const;
  bool write(Bytes& bytes) const;

  GrownArray<unichar> units_;
};

}  // namespace sonavue
