// Every figure of the catalogue against an integration of the outline that the row's sizes give.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "catalogue/csv_table_check.h"
#include "catalogue/rolled/rolled_style.h"
#include "catalogue/rolled_expected.h"
#include "catalogue_csv.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace {

struct CTable {
  const char* m_szFile;
  const char* m_szName;  // the sizes that a model number is made of; none where it is nominal
  int m_nDigits;         // significant ones of a printed figure at most (areas one more)
};

constexpr CTable kTables[] = {
    {"DbData", "b t", 6},        {"BDbData", "B b t", 6}, {"KHData", "", 3},
    {"PHData", "H B tw tf", 6},  {"PCGData", "h/10", 6},  {"GZGData", "h/10", 6},
    {"QxHData", "H B tw tf", 6}, {"ZHData", "H B", 3},    {"QCGData", "h/10", 6},
    {"QGZGData", "h/10", 6},     {"LWDBData", "b t", 6},  {"LWBBJbCG", "h b a t", 6},
    {"LWBBCG", "h b t", 6},      {"LWJBDB", "b a t", 6},  {"LWJBZ", "h b a t", 6},
    {"LWXJBZ", "h b a t", 6},    {"LWRECT", "h t", 6},    {"LWCIR", "d t", 6},
    {"PFTIRON", "", 3},
};

// How far a printed figure may be from the integration beyond half a unit of its last digit, as a
// share of it: by column, and by row and column where one figure stands out. The published figures
// are kept; data/catalogue/SOURCES.md says where they come from.
using CDeviations = std::map<std::string, double>;  // by "table,row,column"

CDeviations ReadDeviations() {
  CDeviations deviations;
  for (const auto& cells : CsvRows(ORV3CAL_DEVIATIONS))
    deviations[orv3::ToUtf8(cells[0] + L"," + cells[1] + L"," + cells[2])] =
        orv3::ToDouble(cells[3]);
  return deviations;
}

double DeviationOf(const CDeviations& deviations, const std::string& table, const std::string& row,
                   const std::string& column) {
  auto found = deviations.find(table + "," + row + "," + column);
  if (found == deviations.end()) found = deviations.find(table + ",," + column);
  return found == deviations.end() ? 0 : found->second;
}

const std::set<std::string> kSizes{"H",  "h",  "B",  "b",  "d", "a", "t",
                                   "t1", "t2", "tw", "tf", "r", "r1"};

// A printed figure and what the integration of its row's outline gives.
struct CFigure {
  std::string text;
  double value;
  double unit;       // of the last digit
  double deviation;  // share of the figure
  double expected;

  bool Agrees(double printed) const {
    return std::abs(printed - expected) <= 0.52 * unit + deviation * std::abs(printed);
  }
};

double UnitOfLastDigit(const CTable& table, const std::string& symbol, const std::string& text) {
  const std::size_t point = text.find('.');
  const double decimals =
      point == std::string::npos ? 0 : static_cast<double>(text.size() - point - 1);
  const double value = std::abs(orv3::ToDouble(orv3::FromUtf8(text)));
  const int digits = table.m_nDigits + (symbol == "A" ? 1 : 0);
  const double significant = std::floor(std::log10(std::max(value, 1e-9))) - digits + 1;
  return std::pow(10, std::max(-decimals, significant));
}

class RolledRows : public testing::TestWithParam<CTable> {
 protected:
  static std::vector<CDataItem> Rows() {
    bool user = false;
    const CString file = orv3::FromUtf8(GetParam().m_szFile) + L".kvb";
    const int style = orv3::FindRolledFile(file.View(), user);
    const CDataTable table = orv3::catalogue::ReadCsvTable(ORV3CAL_CATALOGUE_CSV, style);
    return {table.m_arrItem.begin(), table.m_arrItem.end()};
  }

  // Calls `check` with each figure of the table and what it is of.
  template <class CHECK>
  static void ForEachFigure(CHECK check) {
    const CTable& table = GetParam();
    const CDeviations deviations = ReadDeviations();
    for (const CDataItem& row : Rows()) {
      const std::string no = orv3::ToUtf8(row[0].m_strValue);
      const CValues expected = Expected(table.m_szFile, row);
      for (int i = 1; i < row.GetItemLength(); ++i) {
        const std::string symbol = SymbolOf(row[i]);
        if (kSizes.count(symbol) && !expected.count(symbol)) continue;
        ASSERT_TRUE(expected.count(symbol)) << symbol << " is not checked";
        const std::string text = orv3::ToUtf8(row[i].m_strValue);
        check(no + " " + symbol,
              CFigure{text, orv3::ToDouble(row[i].m_strValue), UnitOfLastDigit(table, symbol, text),
                      DeviationOf(deviations, table.m_szFile, no, symbol), expected.at(symbol)});
      }
    }
  }
};

TEST_P(RolledRows, HoldWhatTheirOutlinesGive) {
  ForEachFigure([](const std::string& what, const CFigure& figure) {
    EXPECT_TRUE(figure.Agrees(figure.value))
        << what << ": " << figure.text << ", the outline gives " << figure.expected;
  });
}

// The numbers in a text, those behind letters of a variant ("I20a") left out.
std::vector<double> NumbersIn(const std::string& text) {
  std::vector<double> numbers;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789.", at), text.size());
    if (end > at) numbers.push_back(orv3::ToDouble(orv3::FromUtf8(text.substr(at, end - at))));
    at = end + (end == at ? 1 : 0);
  }
  return numbers;
}

TEST_P(RolledRows, AreNamedForTheirSizes) {
  if (*GetParam().m_szName == 0) return;
  for (const CDataItem& row : Rows()) {
    const CValues values = ValuesOf(row);
    std::vector<double> sizes;
    for (std::string rest = GetParam().m_szName; !rest.empty();) {
      const std::string symbol = rest.substr(0, rest.find(' '));
      rest.erase(0, symbol.size() + 1);
      sizes.push_back(symbol == "h/10" ? values.at("h") / 10 : values.at(symbol));
    }
    EXPECT_EQ(NumbersIn(orv3::ToUtf8(row[0].m_strValue)), sizes) << testing::PrintToString(sizes);
  }
}

INSTANTIATE_TEST_SUITE_P(Tables, RolledRows, testing::ValuesIn(kTables),
                         [](const auto& tested) { return std::string(tested.param.m_szFile); });

}  // namespace
