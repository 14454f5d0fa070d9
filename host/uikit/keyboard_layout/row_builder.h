#pragma once

#include <string_view>
#include <vector>

#include "host/uikit/keyboard_layout/board_metrics.h"
#include "host/uikit/keyboard_layout/key.h"

namespace host::uikit {

/// Lays out keys in rows, from left to right, on a board's columns.
class RowBuilder {
 public:
  explicit RowBuilder(const BoardMetrics& metrics) : metrics_(metrics) {}

  /// Continues in `row`, at `column`.
  void begin(int row, double column);
  /// Adds a key for every character of the text, each `columns` wide.
  void characters(std::string_view text, double columns = 1);
  /// Adds one key that types all of the text at once.
  void character(std::string_view text, double columns);
  void key(KeyKind kind, std::string_view label, double columns);
  void plane(KeyPlane plane, std::string_view label, double columns);
  /// Adds a key at the right end of the row.
  void last(KeyKind kind, double columns);

  std::vector<Key> take() { return std::move(keys_); }

 private:
  Key& add(double columns);

  const BoardMetrics& metrics_;
  std::vector<Key> keys_;
  int row_ = 0;
  double column_ = 0;
};

/// Returns the code points of valid UTF-8, each as its bytes.
std::vector<std::string_view> code_points(std::string_view text);

}  // namespace host::uikit
