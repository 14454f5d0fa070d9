#include "host/social/delivery/letter.h"

#include "host/basics/percent.h"
#include "host/social/delivery/addresses.h"
#include "host/social/delivery/mail_lines.h"

namespace host::social {
namespace {

std::string joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string all;
  for (const std::string& part : parts) {
    if (!all.empty()) all += between;
    all += part;
  }
  return all;
}

/// Percent-encodes a recipient, except for characters that have a meaning in mail addresses and
/// telephone numbers.
std::string encoded_recipient(const std::string& recipient) {
  std::string encoded;
  for (const char sign : recipient)
    encoded += sign == '@' || sign == '+' ? std::string(1, sign) : percent_encoded({&sign, 1});
  return encoded;
}

}  // namespace

std::string Letter::address() const {
  std::vector<std::string> encoded;
  for (const std::string& recipient : recipients)
    encoded.push_back(encoded_recipient(recipient));
  const std::string to = joined(encoded, ",");
  if (kind == LetterKind::Message) return "sms:" + to + "?body=" + percent_encoded(body);
  return "mailto:" + to + "?subject=" + percent_encoded(subject) +
         "&body=" + percent_encoded(with_mail_line_ends(body));
}

std::string Letter::text() const {
  std::string text = "To: " + joined(recipients, ", ") + "\n";
  if (kind == LetterKind::Mail) text += "Subject: " + subject + "\n";
  return text + "\n" + body;
}

HandedTo send_letter(const Letter& letter) {
  const char* kind = letter.kind == LetterKind::Mail ? "mail" : "message";
  const std::string address = letter.address();
  if (!can_open_address(address)) return put_into_outbox(kind, letter.text());
  return hand_over(kind, address, letter.text());
}

}  // namespace host::social
