// Tables for people: columns aligned by what a terminal shows, Chinese characters being two wide.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace orv3 {

// Columns that a terminal takes to show UTF-8 text.
int DisplayWidth(std::string_view text);

enum class CAlign { Left, Point };  // Point: numbers, their decimal points below each other

class CTextTable {
 public:
  explicit CTextTable(std::vector<CAlign> columns) : m_arrAlign(std::move(columns)) {}

  // The line of titles, printed first with a rule below it.
  void SetHeading(std::vector<std::string> cells) { m_heading = std::move(cells); }
  // A row may have fewer cells than there are columns.
  void AddRow(std::vector<std::string> cells) { m_arrRow.push_back(std::move(cells)); }
  void Print(std::ostream& out) const;

 private:
  struct CWidth {
    int before = 0;  // up to the decimal point; all of a text column
    int after = 0;   // the decimal point and what follows
    int total = 0;
  };

  CWidth WidthOf(std::size_t column) const;
  void PrintRow(std::ostream& out, const std::vector<std::string>& cells,
                const std::vector<CWidth>& widths, bool heading) const;

  std::vector<CAlign> m_arrAlign;
  std::vector<std::string> m_heading;
  std::vector<std::vector<std::string>> m_arrRow;
};

}  // namespace orv3
