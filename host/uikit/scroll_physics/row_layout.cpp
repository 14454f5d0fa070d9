#include "host/uikit/scroll_physics/row_layout.h"

#include <algorithm>
#include <cmath>

namespace host::uikit {

RowHeights RowHeights::uniform(long count, double height) {
  RowHeights heights;
  heights.count_ = std::max(count, 0L);
  heights.height_ = height;
  return heights;
}

void RowHeights::add(double height) {
  if (count_ == 0) height_ = height;
  if (ends_.empty() && height != height_) {
    ends_.reserve(static_cast<std::size_t>(count_) + 1);
    for (long row = 1; row <= count_; ++row)
      ends_.push_back(static_cast<double>(row) * height_);
  }
  if (!ends_.empty()) ends_.push_back(ends_.back() + height);
  ++count_;
}

double RowHeights::begin_of(long row) const {
  if (ends_.empty()) return static_cast<double>(row) * height_;
  return row == 0 ? 0 : ends_[static_cast<std::size_t>(row - 1)];
}

long RowHeights::row_at(double distance) const {
  long row = 0;
  if (!ends_.empty()) {
    row = std::upper_bound(ends_.begin(), ends_.end(), distance) - ends_.begin();
  } else if (height_ > 0) {
    const double rows = std::floor(distance / height_);
    row = static_cast<long>(std::clamp(rows, 0.0, static_cast<double>(count_)));
  }
  return std::clamp(row, 0L, std::max(count_ - 1, 0L));
}

RowLayout::RowLayout(double table_header, std::vector<Section> sections, double table_footer)
    : sections_(std::move(sections)), table_footer_(table_footer) {
  double top = table_header;
  tops_.reserve(sections_.size() + 1);
  for (const Section& section : sections_) {
    tops_.push_back(top);
    top += section.header + section.rows.total() + section.footer;
  }
  tops_.push_back(top);
  height_ = top + table_footer;
}

long RowLayout::row_count(long section) const {
  return section >= 0 && section < section_count() ? at(section).rows.count() : 0;
}

bool RowLayout::contains(RowPlace place) const {
  return place.row >= 0 && place.row < row_count(place.section);
}

RowSpan RowLayout::section(long section) const {
  return {top(section), top(section + 1)};
}

RowSpan RowLayout::section_header(long section) const {
  return {top(section), top(section) + at(section).header};
}

RowSpan RowLayout::section_footer(long section) const {
  return {top(section + 1) - at(section).footer, top(section + 1)};
}

RowSpan RowLayout::row(RowPlace place) const {
  const Section& section = at(place.section);
  const double first = top(place.section) + section.header;
  return {first + section.rows.begin_of(place.row), first + section.rows.begin_of(place.row + 1)};
}

long RowLayout::section_at(double y) const {
  if (sections_.empty()) return -1;
  const auto last = tops_.end() - 1;
  return std::upper_bound(tops_.begin(), last, y) - tops_.begin() - 1;
}

std::optional<RowPlace> RowLayout::row_at(double y) const {
  const long section = section_at(y);
  if (section < 0 || row_count(section) == 0) return std::nullopt;
  const double first = top(section) + at(section).header;
  const double distance = y - first;
  if (distance < 0 || distance >= at(section).rows.total()) return std::nullopt;
  return RowPlace{section, at(section).rows.row_at(distance)};
}

std::vector<long> RowLayout::sections_in(RowSpan span) const {
  std::vector<long> found;
  for (long index = std::max(section_at(span.begin), 0L); index < section_count(); ++index) {
    const RowSpan covered = section(index);
    if (covered.begin >= span.end) break;
    if (covered.end > span.begin) found.push_back(index);
  }
  return found;
}

std::vector<RowPlace> RowLayout::rows_in(RowSpan span) const {
  std::vector<RowPlace> found;
  for (const long index : sections_in(span)) {
    const RowHeights& rows = at(index).rows;
    const double first = top(index) + at(index).header;
    if (span.begin >= first + rows.total()) continue;
    for (long row = rows.row_at(std::max(span.begin - first, 0.0)); row < rows.count(); ++row) {
      if (first + rows.begin_of(row) >= span.end) break;
      found.push_back({index, row});
    }
  }
  return found;
}

}  // namespace host::uikit
