#pragma once

#include <string>
#include <vector>

#include "host/social/delivery/hand_over.h"

namespace host::social {

enum class LetterKind { Mail, Message };

/// A text for somebody, by mail or by telephone.
struct Letter {
  LetterKind kind = LetterKind::Mail;
  std::vector<std::string> recipients;
  /// Of mail alone.
  std::string subject;
  std::string body;

  /// With all of it, for the program that the user has for such letters.
  std::string address() const;
  /// To be read by people.
  std::string text() const;
};

/// To the desktop's program, or to the outbox; a message goes there as well when the desktop has
/// nobody for it.
HandedTo send_letter(const Letter& letter);

}  // namespace host::social
