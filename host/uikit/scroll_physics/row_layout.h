#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <vector>

namespace host::uikit {

struct RowPlace {
  long section = 0;
  long row = 0;
  friend constexpr auto operator<=>(const RowPlace&, const RowPlace&) = default;
};

/// From `begin` to `end`, in points from the top of the content.
struct RowSpan {
  double begin = 0;
  double end = 0;
  double length() const { return end - begin; }
};

/// The heights of the rows of one section. Rows of equal height take no memory; others take one sum
/// per row.
class RowHeights {
 public:
  static RowHeights uniform(long count, double height);

  /// Adds a row at the end.
  void add(double height);

  long count() const { return count_; }
  double total() const { return begin_of(count_); }
  /// Returns the distance of a row from the first row's top; `row` may be the count.
  double begin_of(long row) const;
  /// Returns the row at `distance` from the first row's top, clamped to the existing rows.
  long row_at(double distance) const;

 private:
  long count_ = 0;
  double height_ = 0;
  std::vector<double> ends_;
};

/// The layout of a table from top to bottom: the table's header, for each section its header, rows
/// and footer, then the table's footer. Finding a row takes a search at most.
class RowLayout {
 public:
  struct Section {
    double header = 0;
    RowHeights rows;
    double footer = 0;
  };

  RowLayout() = default;
  RowLayout(double table_header, std::vector<Section> sections, double table_footer);

  const std::vector<Section>& sections() const { return sections_; }
  long section_count() const { return static_cast<long>(sections_.size()); }
  long row_count(long section) const;
  bool contains(RowPlace place) const;
  double height() const { return height_; }

  RowSpan section(long section) const;
  RowSpan section_header(long section) const;
  RowSpan section_footer(long section) const;
  RowSpan row(RowPlace place) const;
  RowSpan table_footer() const { return {height_ - table_footer_, height_}; }

  /// Returns the row at `y`; nothing at a header, a footer or outside the table.
  std::optional<RowPlace> row_at(double y) const;
  /// Returns the rows that overlap `span`, in order.
  std::vector<RowPlace> rows_in(RowSpan span) const;
  /// Returns the sections that overlap `span`, in order.
  std::vector<long> sections_in(RowSpan span) const;

 private:
  const Section& at(long section) const { return sections_[static_cast<std::size_t>(section)]; }
  double top(long section) const { return tops_[static_cast<std::size_t>(section)]; }
  /// Returns the last section that begins at or above `y`; -1 above the first.
  long section_at(double y) const;

  std::vector<Section> sections_;
  /// The top of each section, followed by the end of the last.
  std::vector<double> tops_;
  double table_footer_ = 0;
  double height_ = 0;
};

}  // namespace host::uikit
