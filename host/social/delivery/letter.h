#pragma once

#include <string>
#include <vector>

#include "host/social/delivery/hand_over.h"

namespace host::social {

enum class LetterKind { Mail, Message };

/// A text with recipients: a mail or a text message.
struct Letter {
  LetterKind kind = LetterKind::Mail;
  std::vector<std::string> recipients;
  /// Only for mail.
  std::string subject;
  std::string body;

  /// An address with the whole letter in it, for the user's program for such letters.
  std::string address() const;
  /// The letter in a human-readable form.
  std::string text() const;
};

/// Sends the letter to the desktop's program, or to the outbox. A text message also goes to the
/// outbox when the desktop has no program for it.
HandedTo send_letter(const Letter& letter);

}  // namespace host::social
