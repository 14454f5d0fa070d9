#include "host/uikit/keyboard_layout/row_builder.h"

namespace host::uikit {
namespace {

bool continues_code_point(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::vector<std::string_view> code_points(std::string_view text) {
  std::vector<std::string_view> points;
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t end = begin + 1;
    while (end < text.size() && continues_code_point(text[end]))
      ++end;
    points.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return points;
}

Key& RowBuilder::add(double columns) {
  Key& key = keys_.emplace_back();
  key.row = row_;
  key.frame = metrics_.cell(row_, column_, columns);
  column_ += columns;
  return key;
}

void RowBuilder::begin(int row, double column) {
  row_ = row;
  column_ = column;
}

void RowBuilder::characters(std::string_view text, double columns) {
  for (const std::string_view point : code_points(text))
    character(point, columns);
}

void RowBuilder::character(std::string_view text, double columns) {
  Key& key = add(columns);
  key.text = key.label = text;
  // Keys show their letters as capitals, whatever they type.
  if (text.size() == 1 && text[0] >= 'a' && text[0] <= 'z')
    key.label[0] = static_cast<char>(text[0] - 'a' + 'A');
}

void RowBuilder::key(KeyKind kind, std::string_view label, double columns) {
  Key& key = add(columns);
  key.kind = kind;
  key.label = label;
  if (kind == KeyKind::Space) key.text = " ";
}

void RowBuilder::plane(KeyPlane plane, std::string_view label, double columns) {
  Key& key = add(columns);
  key.kind = KeyKind::Plane;
  key.label = label;
  key.plane = plane;
}

void RowBuilder::last(KeyKind kind, double columns) {
  column_ = metrics_.columns - columns;
  key(kind, "", columns);
}

}  // namespace host::uikit
