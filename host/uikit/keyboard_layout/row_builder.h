#pragma once

#include <string_view>
#include <vector>

#include "host/uikit/keyboard_layout/board_metrics.h"
#include "host/uikit/keyboard_layout/key.h"

namespace host::uikit {

/// Puts keys into rows, from the left to the right, on a board's columns.
class RowBuilder {
 public:
  explicit RowBuilder(const BoardMetrics& metrics) : metrics_(metrics) {}

  /// Goes on in that row, from that column on.
  void begin(int row, double column);
  /// A key for every character of the text, each so many columns wide.
  void characters(std::string_view text, double columns = 1);
  /// Types all of the text at once.
  void character(std::string_view text, double columns);
  void key(KeyKind kind, std::string_view label, double columns);
  void plane(KeyPlane plane, std::string_view label, double columns);
  /// A key at the row's right end.
  void last(KeyKind kind, double columns);

  std::vector<Key> take() { return std::move(keys_); }

 private:
  Key& add(double columns);

  const BoardMetrics& metrics_;
  std::vector<Key> keys_;
  int row_ = 0;
  double column_ = 0;
};

/// The code points of valid UTF-8, each as its bytes.
std::vector<std::string_view> code_points(std::string_view text);

}  // namespace host::uikit
