// Values separated by commas, semicolons or tabs, record by record.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/export.h"

namespace orv3 {

// Reads text in memory, or piece by piece. A record ends with LF, CR or CR LF. A cell in quotation
// marks may hold separators, line ends and, doubled, quotation marks; blanks around cells are
// dropped. Cells are separated by the one of the comma, the semicolon and the tab that the first
// line has most often.
class ORV3CAL_API CCsvReader {
 public:
  // Appends the next piece to a text that holds what was read of the record at hand; false at the
  // end.
  using CMore = std::function<bool(std::string&)>;

  // Both pass over a UTF-8 byte order mark. With `more` no more is held than a record and a piece.
  explicit CCsvReader(std::string bytes);
  explicit CCsvReader(CMore more);
  CCsvReader(const CCsvReader&) = delete;
  CCsvReader& operator=(const CCsvReader&) = delete;

  // Puts the next record into `cells`, which point into the reader and stay valid as long as it (of
  // text in pieces, until the next call); false at the end of the text, and where a cell in
  // quotation marks is not closed or is followed by anything but a separator. An empty line is a
  // record of one empty cell.
  bool Next(std::vector<std::string_view>& cells);
  bool IsMalformed() const noexcept { return m_bMalformed; }
  // The line of the text, from 1, on which the last record starts or the malformed cell ends.
  int Line() const noexcept { return m_nLine; }
  double Done() const noexcept;  // share of the text in memory that has been read

 private:
  // Where a cell lies in the text, which may move while more of it is read.
  struct CCell {
    std::size_t m_nFirst;
    std::size_t m_nEnd;
  };
  void Start();
  char FindSeparator();
  // Reads more where the text at hand ends.
  bool IsEnd(std::size_t at);
  bool ReadTo(std::size_t at);
  bool AtEndOfCell();
  void PassCell();  // to what ends the cell at hand
  CCell PlainCell();
  CCell QuotedCell();
  void EndLine(char end);
  void DropRead();

  CMore m_more;
  std::string m_strBytes;
  std::vector<CCell> m_arrCell;
  std::size_t m_nAt = 0;
  char m_chSeparator = ',';
  std::array<bool, 256> m_arrEnds{};  // by character: whether it ends a cell
  int m_nLine = 1;
  int m_nNextLine = 1;
  bool m_bMalformed = false;
};

}  // namespace orv3
