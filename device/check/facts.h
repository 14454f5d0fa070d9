#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "device/check/system_version.h"

namespace sonavue::device {

/// Whether a system has a class or message. A dump may leave it open.
enum class Presence : char { kYes = 'y', kNo = 'n', kUnknown = '?' };

/// One value per system, in the order of the systems.
using Presences = std::vector<Presence>;

struct MessageFact {
  /// The runtime's encoding; empty if no system has the message.
  std::string types;
  Presences presences;
};

struct ClassFact {
  std::string superclass;
  std::string image;
  Presences presences;
  /// Keyed by the name with its sign: "-setText:".
  std::map<std::string, MessageFact> messages;

  /// Whether any dump has the class.
  bool is_covered() const;
};

/// What is known about the phone's systems.
struct Facts {
  std::vector<SystemVersion> systems;
  std::map<std::string, ClassFact> classes;
  /// The images that the home screen or Settings has loaded by itself. The library is injected into
  /// these two programs.
  std::vector<std::string> program_images;

  const ClassFact* class_named(const std::string& name) const;
  bool is_in_program(const std::string& image) const;
};

/// Throws FormatError, with the file and line, if the facts are truncated or contradict each other.
Facts read_facts(const std::filesystem::path& folder);

/// Whether a system has the class or message that `row` describes. Between two dumps that agree,
/// the answer is theirs; before the first dump that covers the class, it is that dump's.
Presence presence_on(std::size_t system, const Presences& row, const ClassFact& cls);

}  // namespace sonavue::device
