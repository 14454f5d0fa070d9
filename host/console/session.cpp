#include "host/console/session.h"

#include <fmt/format.h>

#include <cstdio>

#include "host/basics/console_line.h"
#include "host/console/commands.h"
#include "host/runtime/log_line.h"
#include "objc/autorelease_pool.h"

namespace host::console {
namespace {

constexpr std::string_view kDone = "ok";
constexpr std::string_view kError = "error: ";

}  // namespace

std::string Answer::line() const {
  switch (kind) {
    case Kind::Value:
      return text;
    case Kind::Error:
      return std::string(kError) + text;
    case Kind::List:
      return text + std::string(kDone);
    default:
      return std::string(kDone);
  }
}

Answer list_of(std::span<const std::string> lines) {
  Answer made{Answer::Kind::List, {}};
  for (const std::string& line : lines)
    made.text += fmt::format("{}{}\n", kListedLine, on_one_line(line));
  return made;
}

Answer Session::execute(std::string_view line) {
  const objc::AutoreleasePool pool;
  LineReader reader(line);
  if (reader.at_end()) return {};
  const Problem start = reader.problem("");
  const auto name = reader.word();
  const Command* command = command_named(name);
  if (!command) {
    const Problem unknown{fmt::format("unknown command: {}", name), start.offset};
    return {Answer::Kind::Error, describe(unknown, line)};
  }
  auto answer = command->carry_out(*this, reader);
  if (!answer) return {Answer::Kind::Error, describe(answer.problem(), line)};
  return std::move(*answer);
}

void Session::touch(int finger, TouchPhase phase, CGPoint point) {
  const bool is_down = phase == TouchPhase::Began || phase == TouchPhase::Moved;
  if (is_down) {
    fingers_[finger] = point;
  } else {
    fingers_.erase(finger);
  }
  phone_.touch(finger, phase, point);
}

Result<Expression> Session::expression(LineReader& reader) const {
  auto made = reader.expression();
  if (!made) return made;
  if (auto problem = evaluator_.check(*made)) return *problem;
  return made;
}

Result<CGPoint> Session::point(LineReader& reader) {
  if (reader.peek_word() != "on") {
    const auto x = reader.number("X of a point, or `on` and a view,");
    if (!x) return x.problem();
    const auto y = reader.number("Y of a point");
    if (!y) return y.problem();
    return CGPoint{*x, *y};
  }
  reader.word();
  return point_on_view(reader);
}

Result<CGPoint> Session::point_on_view(LineReader& reader) {
  const std::size_t start = reader.position();
  // Only the process that owns the view knows its names.
  LineReader ahead = reader;
  if (const auto whole = ahead.expression()) {
    const auto text = reader.line().substr(whole->offset, whole->end - whole->offset);
    if (const auto answer = elsewhere("where " + std::string(text))) {
      reader = ahead;
      CGPoint point;
      const bool is_point =
          std::sscanf(answer->text.c_str(), "{%lf, %lf}", &point.x, &point.y) == 2;
      if (is_point && answer->kind == Answer::Kind::Value) return point;
      return Problem{answer->text, start};
    }
  }
  const auto made = expression(reader);
  if (!made) return made.problem();
  const auto view = evaluator_.evaluate(*made);
  if (!view) return view.problem();
  const auto* object = view->as<objc::Object>();
  const auto centre = object ? phone_.centre_of(*object) : std::nullopt;
  if (!centre) return Problem{"this is not a view on the screen", made->offset};
  return *centre;
}

std::optional<Answer> Session::elsewhere(const std::string& line) {
  const auto said = phone_.answer_elsewhere(line);
  if (!said) return std::nullopt;
  if (*said == kDone) return Answer{};
  if (said->starts_with(kListedLine) && said->ends_with(kDone))
    return Answer{Answer::Kind::List, said->substr(0, said->size() - kDone.size())};
  if (said->starts_with(kError)) return Answer{Answer::Kind::Error, said->substr(kError.size())};
  return Answer{Answer::Kind::Value, *said};
}

}  // namespace host::console
