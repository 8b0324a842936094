// Tables for people: columns aligned on a terminal, Chinese characters counted as two wide.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orv3::cli {

enum class CAlign { Left, Right };

class CTextTable {
 public:
  explicit CTextTable(std::vector<CAlign> columns) : m_arrAlign(std::move(columns)) {}
  // One UTF-8 text a column, shown on one line; fewer leave the rest empty.
  void AddRow(std::vector<std::string> cells);
  void AddRule() { m_arrRow.emplace_back(); }  // an empty line
  std::string Text() const;

 private:
  std::vector<CAlign> m_arrAlign;
  std::vector<std::vector<std::string>> m_arrRow;
};

// The columns that a UTF-8 text takes on a terminal.
int DisplayWidth(std::string_view utf8);

}  // namespace orv3::cli
