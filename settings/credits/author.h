#pragma once

#include "platform/Foundation/NSString.h"

namespace sonavue {

/// Another package of an author, as a tile shows it.
struct Package {
  const char* title;
  const char* picture;
  const char* identifier;  // in the package manager
  const char* action;      // the cell's own method
};

/// Somebody who made this. Texts are UTF-8.
struct Author {
  const char* name;
  const char* role;
  const char* photo;
  const char* mail;
  const char* number;  // for messages
  const char* handle;
  const char* follow_action;
  const Package* packages;
  int package_count;
};

/// A text of an author's.
inline NSString as_text(const char* text) {
  return NSString::stringWithUTF8String(text);
}

}  // namespace sonavue
