#include "text_table.h"

#include <algorithm>
#include <ostream>

namespace orv3 {
namespace {

// The wide ranges of Unicode's East Asian Width table that section data can hold: CJK signs,
// kana, ideographs, Hangul, full-width forms and the supplementary ideographs.
bool IsWide(char32_t c) {
  return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0x303E) ||
         (c >= 0x3041 && c <= 0x4DBF) || (c >= 0x4E00 && c <= 0xA4CF) ||
         (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF) ||
         (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF01 && c <= 0xFF60) ||
         (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x20000 && c <= 0x3FFFD);
}

// The character at `pos` of valid UTF-8; moves `pos` behind it.
char32_t Next(std::string_view text, std::size_t& pos) {
  const auto lead = static_cast<unsigned char>(text[pos++]);
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  char32_t c = more == 0 ? lead : lead & (0x3Fu >> more);
  for (int i = 0; i < more && pos < text.size(); ++i) {
    c = (c << 6) | (static_cast<unsigned char>(text[pos++]) & 0x3Fu);
  }
  return c;
}

int WidthBeforePoint(const std::string& number) {
  return DisplayWidth(std::string_view(number).substr(0, number.find('.')));
}

std::string Spaces(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

}  // namespace

int DisplayWidth(std::string_view text) {
  int width = 0;
  for (std::size_t pos = 0; pos < text.size();) width += IsWide(Next(text, pos)) ? 2 : 1;
  return width;
}

CTextTable::CWidth CTextTable::WidthOf(std::size_t column) const {
  CWidth width;
  for (const auto& row : m_arrRow) {
    if (column >= row.size()) continue;
    const int all = DisplayWidth(row[column]);
    const int before = m_arrAlign[column] == CAlign::Point ? WidthBeforePoint(row[column]) : all;
    width.before = std::max(width.before, before);
    width.after = std::max(width.after, all - before);
  }
  const int title = column < m_heading.size() ? DisplayWidth(m_heading[column]) : 0;
  width.total = std::max(width.before + width.after, title);
  width.before = width.total - width.after;
  return width;
}

void CTextTable::PrintRow(std::ostream& out, const std::vector<std::string>& cells,
                          const std::vector<CWidth>& widths, bool heading) const {
  std::string line;
  int at = 0;
  int start = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    int lead = 0;
    if (m_arrAlign[i] == CAlign::Point) {
      lead = heading ? widths[i].total - DisplayWidth(cells[i])
                     : widths[i].before - WidthBeforePoint(cells[i]);
    }
    if (!cells[i].empty()) {
      line += Spaces(start + lead - at) + cells[i];
      at = start + lead + DisplayWidth(cells[i]);
    }
    start += widths[i].total + 2;
  }
  out << line << '\n';
}

void CTextTable::Print(std::ostream& out) const {
  std::vector<CWidth> widths;
  for (std::size_t i = 0; i < m_arrAlign.size(); ++i) widths.push_back(WidthOf(i));
  if (!m_heading.empty()) {
    PrintRow(out, m_heading, widths, true);
    int total = -2;
    for (const CWidth& width : widths) total += width.total + 2;
    out << std::string(static_cast<std::size_t>(std::max(total, 0)), '-') << '\n';
  }
  for (const auto& row : m_arrRow) PrintRow(out, row, widths, false);
}

}  // namespace orv3
