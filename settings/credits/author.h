#pragma once

#include "platform/Foundation/NSString.h"

namespace sonavue {

/// Another package by an author, shown as a tile.
struct Package {
  const char* title;
  const char* picture;
  const char* identifier;  // in the package manager
  const char* action;      // the method of the cell that a tap calls
};

/// An author of the extension. Texts are UTF-8.
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

/// Converts an author's text to an NSString.
inline NSString as_text(const char* text) {
  return NSString::stringWithUTF8String(text);
}

}  // namespace sonavue
