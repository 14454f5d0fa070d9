#include "host/application/wire/message_reader.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace host::application;
using host::MessageKind;

using HomeReader = MessageReader<ToHome>;

template <class Number>
std::string raw(Number number) {
  return {reinterpret_cast<const char*>(&number), sizeof number};
}

std::string message(MessageKind kind, const std::string& fields) {
  return raw(static_cast<MessageLength>(sizeof kind + fields.size())) + raw(kind) + fields;
}

bool is_refused(const std::string& bytes) {
  HomeReader reader;
  reader.append(bytes);
  return !reader.next() && reader.has_failed();
}

TEST(MessageReader, ReturnsWhatWasWritten) {
  MessageReader<ToApplication> reader;
  reader.append(encoded(ToApplication(FingerChange{3, FingerPhase::Ended, 1.5, -2, 77})));
  reader.append(encoded(ToApplication(ComposedText{"caf\xC3\xA9", 2})));
  const auto finger = reader.next();
  ASSERT_TRUE(finger);
  const auto& change = std::get<FingerChange>(*finger);
  EXPECT_EQ(change.finger, 3);
  EXPECT_EQ(change.phase, FingerPhase::Ended);
  EXPECT_EQ(change.x, 1.5);
  EXPECT_EQ(change.y, -2);
  EXPECT_EQ(change.time, 77);
  const auto text = reader.next();
  ASSERT_TRUE(text);
  EXPECT_EQ(std::get<ComposedText>(*text).text, "caf\xC3\xA9");
  EXPECT_EQ(std::get<ComposedText>(*text).caret, 2);
  EXPECT_FALSE(reader.next());
  EXPECT_FALSE(reader.has_failed());
}

TEST(MessageReader, WaitsForTheRestOfAMessageThatComesByteByByte) {
  HomeReader reader;
  const std::string bytes = encoded(ToHome(ConsoleAnswer{"ok"})) + encoded(ToHome(Pong{9}));
  int whole = 0;
  for (const char byte : bytes) {
    reader.append({&byte, 1});
    while (reader.next())
      ++whole;
    ASSERT_FALSE(reader.has_failed());
  }
  EXPECT_EQ(whole, 2);
  EXPECT_EQ(reader.pending_bytes(), 0u);
}

TEST(MessageReader, RefusesAnUnknownKind) {
  EXPECT_TRUE(is_refused(message(std::variant_size_v<ToHome>, "")));
  EXPECT_TRUE(is_refused(message(0xFFFF, "")));
}

TEST(MessageReader, RefusesInvalidLengths) {
  EXPECT_TRUE(is_refused(raw(MessageLength{0})));
  EXPECT_TRUE(is_refused(raw(MessageLength{1}) + "x"));
  EXPECT_TRUE(is_refused(raw(static_cast<MessageLength>(kLongestMessage + 1))));
  EXPECT_TRUE(is_refused(raw(std::numeric_limits<MessageLength>::max())));
}

TEST(MessageReader, RefusesTooFewOrTooManyFields) {
  const MessageKind pong = ToHome(Pong{}).index();
  EXPECT_TRUE(is_refused(message(pong, "1234567")));
  EXPECT_TRUE(is_refused(message(pong, "123456789")));
  EXPECT_FALSE(is_refused(message(pong, "12345678")));
}

TEST(MessageReader, RefusesATextThatClaimsToBeLongerThanTheMessage) {
  const MessageKind answer = ToHome(ConsoleAnswer{}).index();
  EXPECT_TRUE(is_refused(message(answer, raw(std::uint32_t{5}) + "four")));
  EXPECT_TRUE(is_refused(message(answer, raw(std::uint32_t{0xFFFFFFFF}) + "four")));
}

TEST(MessageReader, RefusesNumbersThatAreNotFinite) {
  const double nothing = std::numeric_limits<double>::quiet_NaN();
  const double endless = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(is_refused(encoded(ToHome(ReachedTime{nothing, 1}))));
  EXPECT_TRUE(is_refused(encoded(ToHome(ReachedTime{1, endless}))));
}

TEST(MessageReader, RefusesAnUnknownEnumerator) {
  const MessageKind steer = ToHome(SteerPlayer{}).index();
  const auto fields = [](std::uint8_t command) {
    return raw(command) + raw(std::uint64_t{1}) + raw(0.5);
  };
  EXPECT_FALSE(is_refused(message(steer, fields(static_cast<std::uint8_t>(PlayerCommand::Last)))));
  EXPECT_TRUE(
      is_refused(message(steer, fields(static_cast<std::uint8_t>(PlayerCommand::Last) + 1))));
}

TEST(MessageReader, ReadsNothingAfterAnInvalidMessage) {
  HomeReader reader;
  reader.append(message(0xFFFF, ""));
  reader.append(encoded(ToHome(Pong{1})));
  EXPECT_FALSE(reader.next());
  reader.append(encoded(ToHome(Pong{2})));
  EXPECT_FALSE(reader.next());
  EXPECT_TRUE(reader.has_failed());
  EXPECT_EQ(reader.pending_bytes(), 0u);
}

TEST(MessageReader, CarriesTheLongestText) {
  MessageReader<ToApplication> reader;
  reader.append(encoded(ToApplication(ConsoleLine{std::string(kLongestText, 'x')})));
  const auto line = reader.next();
  ASSERT_TRUE(line);
  EXPECT_EQ(std::get<ConsoleLine>(*line).text.size(), kLongestText);
}

}  // namespace
