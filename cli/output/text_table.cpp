#include "output/text_table.h"

#include <algorithm>

#include "framework/utf8.h"

namespace orv3::cli {
namespace {

constexpr int kGap = 2;

// East Asian wide characters and full-width forms (Unicode standard annex 11, classes W and F).
constexpr bool IsWide(unsigned long code) noexcept {
  return (code >= 0x1100 && code <= 0x115F) || (code >= 0x2E80 && code <= 0xA4CF) ||
         (code >= 0xAC00 && code <= 0xD7A3) || (code >= 0xF900 && code <= 0xFAFF) ||
         (code >= 0xFE30 && code <= 0xFE6F) || (code >= 0xFF00 && code <= 0xFF60) ||
         (code >= 0xFFE0 && code <= 0xFFE6) || (code >= 0x20000 && code <= 0x3FFFD);
}

void AppendCell(std::string& line, const std::string& cell, int width, CAlign align) {
  const auto fill = static_cast<std::size_t>(std::max(0, width - DisplayWidth(cell)));
  if (align == CAlign::Right) line.append(fill, ' ');
  line += cell;
  if (align == CAlign::Left) line.append(fill, ' ');
}

}  // namespace

int DisplayWidth(std::string_view utf8) {
  const CString text = FromUtf8(utf8);
  int width = 0;
  for (const wchar_t ch : text.View()) width += IsWide(static_cast<unsigned long>(ch)) ? 2 : 1;
  return width;
}

void CTextTable::AddRow(std::vector<std::string> cells) {
  for (std::string& cell : cells) cell = Visible(cell);
  m_arrRow.push_back(std::move(cells));
}

std::string CTextTable::Text() const {
  std::vector<int> widths(m_arrAlign.size(), 0);
  for (const auto& row : m_arrRow) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], DisplayWidth(row[i]));
    }
  }
  std::string text;
  for (const auto& row : m_arrRow) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) line.append(kGap, ' ');
      AppendCell(line, row[i], widths[i], m_arrAlign[i]);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

}  // namespace orv3::cli
