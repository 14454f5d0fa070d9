#include "host/uikit/keyboard_layout/number_pad.h"

#include <array>

namespace host::uikit {
namespace {

constexpr int kColumns = 3;
constexpr int kRows = 4;

constexpr std::array<const char*, 9> kLetters{"",    "ABC",  "DEF", "GHI", "JKL",
                                              "MNO", "PQRS", "TUV", "WXYZ"};

CGRect cell(const BoardMetrics& metrics, int row, int column) {
  const double left = metrics.to_pixel(metrics.screen.width * column / kColumns);
  const double right = metrics.to_pixel(metrics.screen.width * (column + 1) / kColumns);
  const double top = metrics.to_pixel(metrics.height * row / kRows);
  const double bottom = metrics.to_pixel(metrics.height * (row + 1) / kRows);
  return {left, top, right - left, bottom - top};
}

Key make_key(const BoardMetrics& metrics, int row, int column, const char* text) {
  Key key;
  key.row = row;
  key.frame = cell(metrics, row, column);
  key.text = key.label = text;
  return key;
}

}  // namespace

bool is_number_pad(UIKeyboardType type) {
  return type == UIKeyboardTypeNumberPad || type == UIKeyboardTypePhonePad ||
         type == UIKeyboardTypeDecimalPad;
}

std::vector<Key> make_number_pad(const BoardMetrics& metrics, UIKeyboardType type) {
  std::vector<Key> keys;
  for (int digit = 1; digit <= 9; ++digit) {
    const int place = digit - 1;
    const char text[] = {static_cast<char>('0' + digit), 0};
    keys.push_back(make_key(metrics, place / kColumns, place % kColumns, text));
    if (type != UIKeyboardTypeDecimalPad)
      keys.back().sublabel = kLetters[static_cast<std::size_t>(place)];
  }
  const char* corner = type == UIKeyboardTypePhonePad     ? "+"
                       : type == UIKeyboardTypeDecimalPad ? "."
                                                          : "";
  keys.push_back(make_key(metrics, kRows - 1, 0, corner));
  if (!*corner) keys.back().kind = KeyKind::Nothing;
  keys.push_back(make_key(metrics, kRows - 1, 1, "0"));
  keys.push_back(make_key(metrics, kRows - 1, 2, ""));
  keys.back().kind = KeyKind::Backspace;
  return keys;
}

}  // namespace host::uikit
