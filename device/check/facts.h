#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "device/check/system_version.h"

namespace sonavue::device {

/// Does a system have it? A dump need not tell.
enum class Presence : char { kYes = 'y', kNo = 'n', kUnknown = '?' };

/// One sign a system, in the order of the systems.
using Presences = std::vector<Presence>;

struct MessageFact {
  /// As the runtime encodes them; empty where no system has the message.
  std::string types;
  Presences presences;
};

struct ClassFact {
  std::string superclass;
  std::string image;
  Presences presences;
  /// By its name with the sign before it: "-setText:".
  std::map<std::string, MessageFact> messages;

  /// Does any dump have it?
  bool is_covered() const;
};

/// What is known of the phone's systems.
struct Facts {
  std::vector<SystemVersion> systems;
  std::map<std::string, ClassFact> classes;
  /// What the home screen or Settings has by itself, the two programs that the library comes into.
  std::vector<std::string> program_images;

  const ClassFact* class_named(const std::string& name) const;
  bool is_in_program(const std::string& image) const;
};

/// Throws FormatError, with the file and the line, for facts that are cut or contradict themselves.
Facts read_facts(const std::filesystem::path& folder);

/// Whether a system has what `row` tells of, a class or one of its messages. Between two dumps that
/// agree it is what they say, and before the first one that covers the class what that says.
Presence presence_on(std::size_t system, const Presences& row, const ClassFact& cls);

}  // namespace sonavue::device
