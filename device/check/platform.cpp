#include "device/check/platform.h"

#include <fmt/core.h>

#include <fstream>

#include "objc/encoding.h"

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;
using Systems = std::vector<std::size_t>;

std::set<std::string> own_names(const fs::path& source) {
  std::set<std::string> names;
  std::ifstream lines(source / "device/check/own_names.txt");
  for (std::string line; std::getline(lines, line);)
    if (!line.empty() && line[0] != '#') names.insert(line);
  return names;
}

struct Found {
  const ClassFact* declared_by = nullptr;
  const MessageFact* fact = nullptr;
};

/// Looks a message up in the facts, in its class and then in the superclasses.
Found find_fact(const Facts& facts, const Message& message) {
  const ClassFact* cls = facts.class_named(message.cls);
  for (; cls; cls = facts.class_named(cls->superclass)) {
    const auto found = cls->messages.find(message.selector);
    if (found != cls->messages.end()) return {cls, &found->second};
  }
  return {};
}

/// kNo if any of the systems lacks it, otherwise kUnknown if nothing is known about any of them.
Presence presence_in(const Systems& systems, const Presences& row, const ClassFact& cls) {
  Presence worst = Presence::kYes;
  for (const std::size_t system : systems) {
    const Presence here = presence_on(system, row, cls);
    if (here == Presence::kNo) return here;
    if (here == Presence::kUnknown) worst = here;
  }
  return worst;
}

Presence presence_in(const Systems& systems, const Message& message, const Facts& facts) {
  const Found found = find_fact(facts, message);
  if (!found.fact) return Presence::kUnknown;
  return presence_in(systems, found.fact->presences, *found.declared_by);
}

Systems systems_in(const SystemRange& range, const Facts& facts) {
  Systems systems;
  for (std::size_t i = 0; i < facts.systems.size(); ++i)
    if (range.has(facts.systems[i])) systems.push_back(i);
  return systems;
}

class PlatformCheck {
 public:
  PlatformCheck(const PlatformUse& use, const Knowledge& known, Systems systems, Findings& findings)
      : use_(use), known_(known), systems_(std::move(systems)), findings_(findings) {}

  void check() {
    for (const std::string& each : use_.silent)
      find("library: has no symbol {}…", each);
    for (const std::string& each : use_.classes)
      check_class(each);
    check_texts();
    for (const Message& each : use_.messages)
      if (known_.own.count(each.cls) == 0) check_message(each);
    for (const std::string& each : use_.selectors)
      if (known_.own.count(each) == 0) check_selector(each);
    check_lists();
  }

 private:
  template <class... Arguments>
  void find(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    findings_.push_back(fmt::format(text, std::forward<Arguments>(arguments)...));
  }

  void check_class(const std::string& name) {
    if (known_.own.count(name) != 0) return;
    const ClassFact* cls = known_.facts.class_named(name);
    if (!cls) return find("library: the facts have no class {}", name);
    if (cls->is_covered() && presence_in(systems_, cls->presences, *cls) != Presence::kYes)
      find("library: {} does not exist on every system", name);
    check_image(name, *cls);
  }

  void check_image(const std::string& name, const ClassFact& cls) {
    if (known_.facts.is_in_program(cls.image) || use_.linked.count(cls.image) != 0 ||
        use_.has_text(cls.image))
      return;
    find("library: {} is in {}, which is neither linked nor loaded", name, cls.image);
  }

  /// Checks the classes whose names are passed to the runtime as strings.
  void check_texts() {
    for (const auto& [name, cls] : known_.facts.classes)
      if (use_.classes.count(name) == 0 && use_.has_text(name)) check_image(name, cls);
  }

  void check_message(const Message& message) {
    const std::string wrong = contradiction(known_, message);
    if (!wrong.empty()) return find("library: {}", wrong);
    const Presence presence = presence_in(systems_, message, known_.facts);
    if (presence == Presence::kYes) return;
    const std::string name = message.name();
    if (known_.lists.guarded.count(name) != 0) {
      guards_needed_.insert(name);
    } else if (presence == Presence::kNo) {
      find("library: {} is missing on a system, and not listed as guarded", name);
    } else {
      need_listed(name);
    }
  }

  void need_listed(const std::string& name) {
    listed_needed_.insert(name);
    if (known_.lists.uncovered.count(name) == 0)
      find("library: {} is in no dump, and not listed as uncovered", name);
  }

  /// Some known class must have the selector. Its types are unknown.
  void check_selector(const std::string& selector) {
    if (is_sent(selector) || is_proven(selector)) return;
    bool is_listed = false;
    for (const std::string& row : known_.lists.uncovered) {
      if (message_in(row).selector.substr(1) != selector) continue;
      listed_needed_.insert(row);
      is_listed = true;
    }
    if (!is_listed) find("library: the facts have no selector {}", selector);
  }

  bool is_sent(const std::string& selector) const {
    for (const Message& each : use_.messages)
      if (each.selector.substr(1) == selector) return true;
    return false;
  }

  bool is_proven(const std::string& selector) const {
    for (const auto& [name, cls] : known_.facts.classes)
      for (const char* kind : {"-", "+"})
        if (presence_in(systems_, {name, kind + selector, ""}, known_.facts) == Presence::kYes)
          return true;
    return false;
  }

  void check_lists() {
    for (const std::string& name : known_.lists.uncovered)
      if (listed_needed_.count(name) == 0)
        find("uncovered: {} is not used, or the facts cover it", name);
    for (const auto& [name, reason] : known_.lists.guarded) {
      if (guards_needed_.count(name) == 0)
        find("guarded: {} is not used, or every system has it", name);
      if (use_.asked.count(name) == 0) find("guarded: {} is sent unguarded", name);
    }
  }

  const PlatformUse& use_;
  const Knowledge& known_;
  const Systems systems_;
  Findings& findings_;
  std::set<std::string> guards_needed_;
  std::set<std::string> listed_needed_;
};

bool is_proven_on(std::size_t system, const PlatformUse& use, const Knowledge& known) {
  for (const Message& each : use.messages) {
    const std::string name = each.name();
    if (known.own.count(each.cls) == 0 && known.lists.guarded.count(name) == 0 &&
        known.lists.uncovered.count(name) == 0 &&
        presence_in({system}, each, known.facts) != Presence::kYes)
      return false;
  }
  return true;
}

}  // namespace

Knowledge read_knowledge(const fs::path& source) {
  const fs::path folder = source / "device/facts";
  return {read_facts(folder), read_fact_lists(folder), own_names(source)};
}

std::string contradiction(const Knowledge& known, const Message& message) {
  const ClassFact* cls = known.facts.class_named(message.cls);
  if (!cls || !cls->is_covered()) return "";
  const MessageFact* fact = find_fact(known.facts, message).fact;
  if (!fact && known.lists.uncovered.count(message.name()) != 0) return "";
  if (!fact || fact->types.empty()) return message.name() + " is a message that no system has";
  if (objc::same_encoding(fact->types.c_str(), message.types.c_str())) return "";
  return fmt::format("{} is bound as {} but defined as {}", message.name(), message.types,
                     fact->types);
}

void check_platform(const PlatformUse& use, const Knowledge& known, const SystemRange& range,
                    Findings& findings) {
  PlatformCheck(use, known, systems_in(range, known.facts), findings).check();
  const SystemRange proven = proven_range(use, known);
  if (range != proven)
    findings.push_back(
        fmt::format("control: promises the systems from {}, the facts prove them from {}",
                    range.text(), proven.text()));
}

SystemRange proven_range(const PlatformUse& use, const Knowledge& known) {
  const std::vector<SystemVersion>& systems = known.facts.systems;
  std::size_t end = 0;
  while (end < systems.size() && is_proven_on(end, use, known))
    ++end;
  if (end == 0) return {systems.front(), systems.front()};
  // A dump is valid for later systems until the next dump or the next major version.
  const SystemVersion next_major = {systems[end - 1].major + 1, 0};
  if (end == systems.size()) return {systems.front(), next_major};
  return {systems.front(), std::min(next_major, systems[end])};
}

}  // namespace sonavue::device
