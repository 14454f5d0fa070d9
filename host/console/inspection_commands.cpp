#include <fmt/format.h>

#include "host/console/commands.h"
#include "host/console/compare.h"
#include "host/console/print.h"

namespace host::console {
namespace {

// A typing error must not keep the console busy for hours.
constexpr double kLongestAdvance = 24 * 60 * 60;

Result<Answer> advance(Session& session, LineReader& reader) {
  reader.at_end();
  const Problem wrong =
      reader.problem(fmt::format("the clock advances by 0 to {} seconds", kLongestAdvance));
  const auto seconds = reader.number("the number of seconds");
  if (!seconds) return seconds.problem();
  if (*seconds < 0 || *seconds > kLongestAdvance) return wrong;
  if (const auto problem = reader.end()) return *problem;
  session.phone().advance(*seconds);
  return Answer{};
}

Result<Answer> print(Session& session, LineReader& reader) {
  if (const auto answer = session.elsewhere(std::string(reader.line()))) return *answer;
  const auto expression = session.expression(reader);
  if (!expression) return expression.problem();
  if (const auto problem = reader.end()) return *problem;
  const auto value = session.evaluator().evaluate(*expression);
  if (!value) return value.problem();
  return Answer{Answer::Kind::Value, text_of(*value)};
}

std::string_view written(const Expression& expression, std::string_view line) {
  return line.substr(expression.offset, expression.end - expression.offset);
}

Result<Answer> expect(Session& session, LineReader& reader) {
  if (const auto answer = session.elsewhere(std::string(reader.line()))) return *answer;
  const auto left = session.expression(reader);
  if (!left) return left.problem();
  const auto symbol = reader.comparison();
  if (!symbol) return symbol.problem();
  const auto right = session.expression(reader);
  if (!right) return right.problem();
  if (const auto problem = reader.end()) return *problem;

  const auto found = session.evaluator().evaluate(*left);
  if (!found) return found.problem();
  const auto wanted = session.evaluator().evaluate(*right);
  if (!wanted) return wanted.problem();
  const auto comparison = comparison_named(symbol->text);
  const auto verdict = comparison ? holds(*found, *comparison, *wanted) : std::nullopt;
  if (!verdict) {
    return Problem{fmt::format("{} and {} cannot be compared with {}", text_of(*found),
                               text_of(*wanted), symbol->text),
                   symbol->offset};
  }
  if (*verdict) return Answer{};
  return Answer{Answer::Kind::Error,
                fmt::format("expected {} {} {}, but {} is not {} {}", written(*left, reader.line()),
                            symbol->text, written(*right, reader.line()), text_of(*found),
                            symbol->text, text_of(*wanted))};
}

/// Returns the centre of a view on the screen, where a finger would touch it.
Result<Answer> where(Session& session, LineReader& reader) {
  const auto point = session.point_on_view(reader);
  if (!point) return point.problem();
  if (const auto problem = reader.end()) return *problem;
  return Answer{Answer::Kind::Value, fmt::format("{{{}, {}}}", point->x, point->y)};
}

Result<Answer> screenshot(Session& session, LineReader& reader) {
  reader.at_end();
  const Problem wrong = reader.problem("the name of a .png file is missing");
  const auto file = reader.rest();
  if (!file.ends_with(".png") || file.size() == std::string_view(".png").size()) return wrong;
  return answer_of(session.phone().screenshot(std::string(file)));
}

/// Checks that input has left nothing open or under way.
Result<Answer> rest(Session& session, LineReader& reader) {
  if (const auto problem = reader.end()) return *problem;
  return answer_of(session.phone().unrest());
}

Result<Answer> echo(Session&, LineReader& reader) {
  return Answer{Answer::Kind::Value, std::string(reader.rest())};
}

Result<Answer> process(Session& session, LineReader& reader) {
  if (reader.at_end()) return reader.problem("the name of a process is missing");
  const auto name = reader.word();
  if (const auto problem = reader.end()) return *problem;
  return answer_of(session.phone().talk_to(name));
}

Result<Answer> quit(Session&, LineReader& reader) {
  if (const auto problem = reader.end()) return *problem;
  return Answer{Answer::Kind::Quit, {}};
}

/// Runs a command that describes or compares objects, which is their own code.
template <Result<Answer> (*Command)(Session&, LineReader&)>
Result<Answer> asking(Session& session, LineReader& reader) {
  try {
    return Command(session, reader);
  } catch (...) {
    return Answer{Answer::Kind::Error, "an object raised an exception when it was asked"};
  }
}

constexpr Command kInspectionCommands[] = {
    {"advance", &advance}, {"print", &asking<&print>},  {"expect", &asking<&expect>},
    {"where", &where},     {"screenshot", &screenshot}, {"rest", &rest},
    {"echo", &echo},       {"process", &process},       {"quit", &quit},
};

}  // namespace

std::span<const Command> inspection_commands() {
  return kInspectionCommands;
}

}  // namespace host::console
