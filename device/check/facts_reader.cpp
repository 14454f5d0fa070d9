#include <fmt/core.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "device/check/facts.h"
#include "device/macho/bytes.h"

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;
using Columns = std::vector<std::string>;

constexpr const char* kNothing = "-";

Columns columns_of(const std::string& line) {
  std::istringstream words(line);
  Columns columns;
  for (std::string word; words >> word;)
    columns.push_back(word);
  return columns;
}

bool has(const Presences& presences, Presence presence) {
  return std::count(presences.begin(), presences.end(), presence) != 0;
}

/// Reads one file into the facts. Each file describes one image.
class Reader {
 public:
  Reader(const fs::path& path, Facts& facts) : path_(path), facts_(facts) {}

  void read() {
    std::ifstream lines(path_);
    for (std::string line; std::getline(lines, line);) {
      ++line_;
      const Columns columns = columns_of(line);
      if (columns.empty() || columns[0][0] == '#') continue;
      if (ended_) refuse("something follows the end row");
      read_row(columns);
    }
    if (!ended_) refuse("it is truncated: it has no end row");
  }

 private:
  [[noreturn]] void refuse(const std::string& why) const {
    throw FormatError(fmt::format("{}:{}: {}", path_.string(), line_, why));
  }

  void require(bool holds, const std::string& otherwise) const {
    if (!holds) refuse(otherwise);
  }

  void need_columns(const Columns& columns, std::size_t count) const {
    require(columns.size() == count,
            fmt::format("{} columns instead of {}", columns.size(), count));
  }

  void read_row(const Columns& columns) {
    const std::string& kind = columns[0];
    if (kind == "systems") {
      read_systems(columns);
    } else if (kind == "image") {
      read_image(columns);
    } else if (kind == "class") {
      read_class(columns);
    } else if (kind == "end") {
      read_end(columns);
    } else if (kind.size() > 1 && (kind[0] == '-' || kind[0] == '+')) {
      read_message(columns);
    } else {
      refuse(fmt::format("'{}' is not a kind of row", kind));
    }
  }

  void read_systems(const Columns& columns) {
    std::vector<SystemVersion> systems;
    for (auto each = columns.begin() + 1; each != columns.end(); ++each)
      systems.push_back(version(*each));
    require(systems_.empty(), "the systems are listed twice");
    require(!systems.empty() && std::is_sorted(systems.begin(), systems.end(), std::less_equal()),
            "the systems are out of order");
    systems_ = systems;
    if (facts_.systems.empty()) facts_.systems = systems;
    require(facts_.systems == systems, "different systems than in the previous files");
  }

  SystemVersion version(const std::string& text) const {
    try {
      return system_version(text);
    } catch (const FormatError& problem) {
      refuse(problem.what());
    }
  }

  void read_image(const Columns& columns) {
    const bool in_program =
        columns.size() == 3 && (columns[2] == "home-screen" || columns[2] == "settings");
    if (!in_program) need_columns(columns, 2);
    require(image_.empty(), "a second image");
    require(columns[1][0] == '/', "the image is not a path on the device");
    image_ = columns[1];
    if (in_program) facts_.program_images.push_back(image_);
  }

  Presences presences(const std::string& signs) const {
    require(signs.size() == systems_.size(),
            fmt::format("{} signs for {} systems", signs.size(), systems_.size()));
    require(signs.find_first_not_of("yn?") == std::string::npos, "a sign is not one of y, n and ?");
    Presences presences;
    for (const char sign : signs)
      presences.push_back(static_cast<Presence>(sign));
    return presences;
  }

  void read_class(const Columns& columns) {
    need_columns(columns, 4);
    require(!systems_.empty() && !image_.empty(), "a class before the systems and the image");
    const std::string& name = columns[1];
    require(!facts_.class_named(name), fmt::format("{} is listed twice", name));
    class_ = &facts_.classes[name];
    *class_ = {columns[2] == kNothing ? "" : columns[2], image_, presences(columns[3]), {}};
    ++rows_;
  }

  void read_message(const Columns& columns) {
    need_columns(columns, 3);
    require(class_, "a message before a class");
    const std::string& name = columns[0];
    const MessageFact fact = {columns[1] == kNothing ? "" : columns[1], presences(columns[2])};
    static const std::regex types(".+@:.*");
    require(fact.types.empty() || std::regex_match(fact.types, types),
            fmt::format("'{}' are not the types of a message", fact.types));
    require(fact.types.empty() != has(fact.presences, Presence::kYes),
            fmt::format("{} has types without a system, or the reverse", name));
    for (std::size_t i = 0; i < systems_.size(); ++i)
      require(class_->presences[i] == Presence::kYes || fact.presences[i] != Presence::kYes,
              fmt::format("{} exists in {}, where its class does not", name, systems_[i].text()));
    require(class_->messages.emplace(name, fact).second, fmt::format("{} is listed twice", name));
    ++rows_;
  }

  void read_end(const Columns& columns) {
    need_columns(columns, 2);
    require(columns[1] == std::to_string(rows_),
            fmt::format("it is truncated: it has {} rows instead of {}", rows_, columns[1]));
    ended_ = true;
  }

  const fs::path& path_;
  Facts& facts_;
  std::vector<SystemVersion> systems_;
  std::string image_;
  ClassFact* class_ = nullptr;
  std::size_t line_ = 0;
  std::size_t rows_ = 0;
  bool ended_ = false;
};

void check_superclasses(const Facts& facts, const fs::path& folder) {
  for (const auto& [name, cls] : facts.classes) {
    const ClassFact* base = facts.class_named(cls.superclass);
    for (std::size_t i = 0; base && i < facts.systems.size(); ++i)
      if (cls.presences[i] == Presence::kYes && base->presences[i] == Presence::kNo)
        throw FormatError(fmt::format("{}: {} exists in {}, where its superclass {} does not",
                                      folder.string(), name, facts.systems[i].text(),
                                      cls.superclass));
  }
}

}  // namespace

Facts read_facts(const fs::path& folder) {
  std::set<fs::path> files;
  if (fs::is_directory(folder))
    for (const auto& each : fs::directory_iterator(folder))
      if (each.path().extension() == ".facts") files.insert(each.path());
  if (files.empty()) throw FormatError(folder.string() + ": has no facts");
  Facts facts;
  for (const fs::path& file : files)
    Reader(file, facts).read();
  check_superclasses(facts, folder);
  return facts;
}

}  // namespace sonavue::device
