#include "framework/csv.h"

#include <algorithm>

namespace orv3 {
namespace {

constexpr std::size_t kKeep = 1U << 16;  // text that was read is dropped from here on

}  // namespace

bool CCsvReader::IsEnd(std::size_t at) { return at >= m_strBytes.size() && !ReadTo(at); }

CCsvReader::CCsvReader(std::string bytes) : m_strBytes(std::move(bytes)) { Start(); }

CCsvReader::CCsvReader(CMore more) : m_more(std::move(more)) { Start(); }

void CCsvReader::Start() {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (!IsEnd(kMark.size() - 1) && m_strBytes.starts_with(kMark)) m_nAt = kMark.size();
  m_chSeparator = FindSeparator();
  for (const char end : {m_chSeparator, '\n', '\r'})
    m_arrEnds[static_cast<unsigned char>(end)] = true;
}

char CCsvReader::FindSeparator() {
  static constexpr std::string_view kSeparators = ",;\t";
  std::size_t counts[kSeparators.size()] = {};
  bool quoted = false;
  for (std::size_t at = m_nAt; !IsEnd(at); ++at) {
    const char ch = m_strBytes[at];
    if (ch == '"') quoted = !quoted;
    if (quoted) continue;
    if (ch == '\n' || ch == '\r') break;
    const std::size_t which = kSeparators.find(ch);
    if (which != kSeparators.npos) ++counts[which];
  }
  std::size_t most = 0;
  for (std::size_t i = 1; i < kSeparators.size(); ++i) most = counts[i] > counts[most] ? i : most;
  return kSeparators[most];
}

double CCsvReader::Done() const noexcept {
  if (m_strBytes.empty()) return 1;
  return static_cast<double>(m_nAt) / static_cast<double>(m_strBytes.size());
}

bool CCsvReader::ReadTo(std::size_t at) {
  while (at >= m_strBytes.size()) {
    if (!m_more || !m_more(m_strBytes)) return false;
  }
  return true;
}

void CCsvReader::DropRead() {
  if (!m_more || m_nAt < kKeep) return;
  m_strBytes.erase(0, m_nAt);
  m_nAt = 0;
}

bool CCsvReader::Next(std::vector<std::string_view>& cells) {
  cells.clear();
  m_arrCell.clear();
  DropRead();
  if (m_bMalformed || IsEnd(m_nAt)) return false;
  m_nLine = m_nNextLine;
  for (bool more = true; more;) {
    m_arrCell.push_back(!IsEnd(m_nAt) && m_strBytes[m_nAt] == '"' ? QuotedCell() : PlainCell());
    if (m_bMalformed) {
      m_nLine = m_nNextLine;
      return false;
    }
    if (IsEnd(m_nAt)) break;
    const char end = m_strBytes[m_nAt++];
    more = end == m_chSeparator;
    if (!more) EndLine(end);
  }
  for (const CCell& cell : m_arrCell)
    cells.emplace_back(m_strBytes.data() + cell.m_nFirst, cell.m_nEnd - cell.m_nFirst);
  return true;
}

// Counts a line that has ended with a character, and passes over the LF of a CR LF.
void CCsvReader::EndLine(char end) {
  if (end == '\r' && !IsEnd(m_nAt) && m_strBytes[m_nAt] == '\n') ++m_nAt;
  ++m_nNextLine;
}

bool CCsvReader::AtEndOfCell() {
  return IsEnd(m_nAt) || m_arrEnds[static_cast<unsigned char>(m_strBytes[m_nAt])];
}

void CCsvReader::PassCell() {
  const auto ends = [this](char ch) { return m_arrEnds[static_cast<unsigned char>(ch)]; };
  do {
    const auto rest = std::string_view(m_strBytes).substr(m_nAt);
    m_nAt += static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), ends) - rest.begin());
  } while (!AtEndOfCell());
}

CCsvReader::CCell CCsvReader::PlainCell() {
  CCell cell{m_nAt, m_nAt};
  PassCell();
  cell.m_nEnd = m_nAt;
  while (cell.m_nFirst < cell.m_nEnd && m_strBytes[cell.m_nFirst] == ' ') ++cell.m_nFirst;
  while (cell.m_nFirst < cell.m_nEnd && m_strBytes[cell.m_nEnd - 1] == ' ') --cell.m_nEnd;
  return cell;
}

// Doubled quotes are made single in place, which only shortens the text.
CCsvReader::CCell CCsvReader::QuotedCell() {
  const std::size_t first = ++m_nAt;
  std::size_t out = first;
  bool closed = false;
  while (!IsEnd(m_nAt)) {
    const char ch = m_strBytes[m_nAt++];
    if (ch == '"') {
      closed = IsEnd(m_nAt) || m_strBytes[m_nAt] != '"';
      if (closed) break;
      ++m_nAt;
    }
    m_nNextLine += ch == '\n' ? 1 : 0;
    m_strBytes[out++] = ch;
  }
  if (closed) {
    const CCell behind = PlainCell();
    closed = behind.m_nFirst == behind.m_nEnd;
  }
  m_bMalformed = !closed;
  return {first, out};
}

}  // namespace orv3
