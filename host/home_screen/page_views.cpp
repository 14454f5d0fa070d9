#include "host/home_screen/page_views.h"

#include <utility>

#include "host/basics/codec.h"
#include "host/basics/utf8.h"
#include "host/console/description.h"
#include "host/inspection/view_tree.h"
#include "host/runtime/log.h"

namespace host::launcher {
namespace {

std::string cut(std::string text, std::size_t longest) {
  if (text.size() <= longest) return text;
  while (longest > 0 && utf8::is_continuation(text[longest]))
    --longest;
  return text.substr(0, longest) + "…";
}

browser::ViewRow row_of(const inspection::TreeLine& line) {
  constexpr std::size_t kLongest = PageViews::kLongestText;
  browser::ViewRow row;
  row.depth = line.depth;
  row.class_name = "…";
  if (line.is_cut) return row;
  const inspection::ViewFacts facts = inspection::facts_of(line.view);
  row.class_name = cut(facts.class_name, kLongest);
  row.text = cut(facts.text, kLongest);
  row.frame = facts.frame;
  row.place = facts.on_screen;
  row.clips = facts.clips;
  row.is_hidden = facts.is_hidden;
  // A layer keeps its opacity in single precision.
  row.alpha = static_cast<float>(facts.alpha);
  row.gestures = cut(facts.gestures, kLongest);
  return row;
}

}  // namespace

// Views are asked, and an extension's may raise anything.
browser::Views PageViews::views() {
  classes_.clear();
  browser::Views views;
  Encoder rows;
  try {
    const auto lines = inspection::tree_of_windows();
    for (const inspection::TreeLine& line : lines) {
      if (classes_.size() == kMostViews) break;
      row_of(line).list(rows);
      classes_.push_back(objc::class_of(line.view.id()));
    }
    views.left_out = static_cast<std::uint32_t>(lines.size() - classes_.size());
  } catch (...) {
    if (!std::exchange(has_warned_, true))
      spdlog::warn("browser: a view raised an exception when the page asked for the views");
  }
  views.count = static_cast<std::uint32_t>(classes_.size());
  views.rows = rows.bytes();
  return views;
}

std::string PageViews::description(std::uint32_t view) {
  if (view >= classes_.size()) return {};
  std::string text;
  for (const std::string& line : console::description_of(classes_[view]))
    text += line + "\n";
  return cut(std::move(text), kLongestDescription);
}

}  // namespace host::launcher
