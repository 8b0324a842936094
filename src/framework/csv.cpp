#include "framework/csv.h"

namespace orv3 {

CCsvReader::CCsvReader(std::string bytes) : m_strBytes(std::move(bytes)) {
  if (m_strBytes.starts_with("\xEF\xBB\xBF")) m_nAt = 3;
}

double CCsvReader::Done() const noexcept {
  if (m_strBytes.empty()) return 1;
  return static_cast<double>(m_nAt) / static_cast<double>(m_strBytes.size());
}

bool CCsvReader::Next(std::vector<std::string_view>& cells) {
  cells.clear();
  const std::size_t size = m_strBytes.size();
  if (m_nAt >= size) return false;
  while (true) {
    cells.push_back(m_nAt < size && m_strBytes[m_nAt] == '"' ? QuotedCell() : PlainCell());
    if (m_nAt >= size) return true;
    const char end = m_strBytes[m_nAt++];
    if (end == '\r' && m_nAt < size && m_strBytes[m_nAt] == '\n') ++m_nAt;
    if (end != ',') return true;
  }
}

std::string_view CCsvReader::PlainCell() {
  const std::size_t first = m_nAt;
  while (m_nAt < m_strBytes.size()) {
    const char ch = m_strBytes[m_nAt];
    if (ch == ',' || ch == '\n' || ch == '\r') break;
    ++m_nAt;
  }
  std::string_view cell(m_strBytes.data() + first, m_nAt - first);
  while (cell.starts_with(' ')) cell.remove_prefix(1);
  while (cell.ends_with(' ')) cell.remove_suffix(1);
  return cell;
}

// Doubled quotes are made single in place, which only shortens the text.
std::string_view CCsvReader::QuotedCell() {
  const std::size_t first = ++m_nAt;
  std::size_t out = first;
  while (m_nAt < m_strBytes.size()) {
    const char ch = m_strBytes[m_nAt++];
    if (ch == '"') {
      if (m_nAt >= m_strBytes.size() || m_strBytes[m_nAt] != '"') break;
      ++m_nAt;
    }
    m_strBytes[out++] = ch;
  }
  const std::string_view cell(m_strBytes.data() + first, out - first);
  PlainCell();  // what stands between the closing quote and the comma is dropped
  return cell;
}

}  // namespace orv3
