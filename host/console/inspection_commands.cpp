#include <fmt/format.h>

#include "host/console/commands.h"
#include "host/console/compare.h"
#include "host/console/description.h"
#include "host/console/print.h"
#include "host/inspection/view_tree.h"

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

/// The value of an expression that ends the line.
Result<Value> last_value(Session& session, LineReader& reader) {
  const auto expression = session.expression(reader);
  if (!expression) return expression.problem();
  if (const auto problem = reader.end()) return *problem;
  return session.evaluator().evaluate(*expression);
}

Result<Answer> print(Session& session, LineReader& reader) {
  if (const auto answer = session.elsewhere(std::string(reader.line()))) return *answer;
  const auto value = last_value(session, reader);
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

/// Lists the views of the process, or a view and those below it.
Result<Answer> tree(Session& session, LineReader& reader) {
  if (const auto answer = session.elsewhere(std::string(reader.line()))) return *answer;
  std::vector<inspection::TreeLine> views;
  if (reader.at_end()) {
    views = inspection::tree_of_windows();
  } else {
    const Problem wrong = reader.problem("this is not a view");
    const auto value = last_value(session, reader);
    if (!value) return value.problem();
    const auto* object = value->as<objc::Object>();
    const UIView view = object ? inspection::as_view(*object) : UIView();
    if (!view) return wrong;
    views = inspection::tree_of(view);
  }
  std::vector<std::string> lines;
  for (const inspection::TreeLine& line : views)
    lines.push_back(std::string(static_cast<std::size_t>(line.depth) * 2, ' ') +
                    inspection::text_of(line));
  return list_of(lines);
}

/// Lists what the class of an object, or a class, consists of.
Result<Answer> describe(Session& session, LineReader& reader) {
  if (const auto answer = session.elsewhere(std::string(reader.line()))) return *answer;
  reader.at_end();
  const Problem wrong = reader.problem("only objects and classes can be described");
  const auto value = last_value(session, reader);
  if (!value) return value.problem();
  if (const auto* cls = value->as<objc::Class>()) return list_of(description_of(*cls));
  const auto* object = value->as<objc::Object>();
  if (!object) return wrong;
  return list_of(description_of(objc::class_of(object->id())));
}

/// Reads a file's name with this ending, which may contain blanks.
Result<std::string> file_name(LineReader& reader, std::string_view ending) {
  reader.at_end();
  const Problem wrong = reader.problem(fmt::format("the name of a {} file is missing", ending));
  const auto file = reader.rest();
  if (!file.ends_with(ending) || file.size() == ending.size()) return wrong;
  return std::string(file);
}

Result<Answer> screenshot(Session& session, LineReader& reader) {
  const auto file = file_name(reader, ".png");
  if (!file) return file.problem();
  return answer_of(session.phone().screenshot(*file));
}

Result<Answer> compare(Session& session, LineReader& reader) {
  const auto file = file_name(reader, ".png");
  if (!file) return file.problem();
  if (auto difference = session.phone().compare(*file))
    return Answer{Answer::Kind::Error, std::move(*difference)};
  return Answer{Answer::Kind::Value, "equal"};
}

Result<Answer> record(Session& session, LineReader& reader) {
  LineReader ahead = reader;
  if (ahead.word() == "off" && !ahead.end()) return answer_of(session.phone().end_recording());
  const auto file = file_name(reader, ".scn");
  if (!file) return Problem{file.problem().text + ", or off", file.problem().offset};
  return answer_of(session.phone().record(*file));
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
    {"advance", &advance},
    {"print", &asking<&print>},
    {"expect", &asking<&expect>},
    {"tree", &asking<&tree>},
    {"describe", &asking<&describe>},
    {"where", &where},
    {"screenshot", &screenshot},
    {"compare", &compare},
    {"record", &record},
    {"rest", &rest},
    {"echo", &echo},
    {"process", &process},
    {"quit", &quit},
};

}  // namespace

std::span<const Command> inspection_commands() {
  return kInspectionCommands;
}

}  // namespace host::console
