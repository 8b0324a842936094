// Every figure of the catalogue against an integration of the section that its sizes describe.
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "catalogue/rolled_expected.h"
#include "framework/csv.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/whole_file.h"

namespace {

struct CTable {
  const char* m_szFile;
  const char* m_szName;  // the sizes that a model number is made of; none where it is nominal
  int m_nDigits;         // significant ones of a printed figure at most (areas one more)
  double m_dResolution;  // a digit worth this share of its figure is seen when it is wrong
  // How far a printed figure may be from the integration beyond half a unit of its last digit, as a
  // share of it: by column, and by row and column where one figure stands out. The published
  // figures are kept; data/catalogue/SOURCES.md says where they come from.
  std::map<std::string, double> m_mapDeviation;
};

const CTable kTables[] = {
    {"DbData", "b t", 6, 0.003, {}},
    {"BDbData", "B b t", 6, 0.003, {}},
    {"KHData", "", 3, 0.003, {{"G", 0.00056}, {"Wx", 0.00036}, {"Iy", 0.00017}}},
    {"PHData", "H B tw tf", 6, 0.003, {}},
    {"PCGData", "h/10", 6, 0.003, {}},
    {"GZGData", "h/10", 6, 0.003, {}},
    {"QxHData", "H B tw tf", 6, 0.003, {}},
    {"ZHData",
     "H B",
     3,
     0.003,
     {{"A", 0.0004}, {"G", 0.00032}, {"ix", 0.00012}, {"HN298X149 ix", 0.0014}, {"Wx", 1e-05}}},
    {"QCGData", "h/10", 6, 0.003, {}},
    {"QGZGData", "h/10", 6, 0.003, {}},
    {"LWDBData",
     "b t",
     6,
     0.012,
     {{"Iy", 0.0057},
      {"yo", 0.00063},
      {"Uy", 0.003},
      {"iy", 0.0047},
      {"ixo", 0.00041},
      {"Ix", 0.00063},
      {"It", 0.0012},
      {"Wxomax", 0.00102},
      {"Ixo", 0.00051}}},
    {"LWBBJbCG",
     "h b a t",
     6,
     0.006,
     {{"Ix", 0.00058},
      {"Wx", 0.00055},
      {"Iy", 0.0013},
      {"Wymin", 0.0013},
      {"Iy1", 0.00067},
      {"eo", 0.0026},
      {"Iw", 0.057},
      {"k", 0.028},
      {"Ww1", 0.053},
      {"Ww2", 0.1},
      {"Wymax", 0.0014},
      {"xo", 0.0023},
      {"It", 0.00011},
      {"iy", 0.00044},
      {"ix", 9e-05},
      {"C140X50X20X2.5 ix", 0.0035}}},
    {"LWBBCG",
     "h b t",
     6,
     0.003,
     {{"Iy", 0.0014},
      {"iy", 0.00092},
      {"xo", 0.00064},
      {"eo", 0.0021},
      {"k", 0.0032},
      {"Ww1", 0.00089},
      {"Uy", 0.0016},
      {"Ix", 0.00063},
      {"Wx", 0.00075},
      {"Wymax", 0.0015},
      {"Iy1", 0.00012},
      {"Ww2", 0.00077},
      {"ix", 1e-05},
      {"Wymin", 0.00037}}},
    {"LWJBDB",
     "b a t",
     6,
     0.003,
     {{"Ixo", 0.00081},
      {"Ix", 0.0013},
      {"ix", 0.00097},
      {"Ix1", 0.00053},
      {"eo", 0.014},
      {"Iw", 0.11},
      {"Uy", 0.0031},
      {"Wxomax", 0.00072},
      {"ixo", 0.00033},
      {"Wxomin", 0.00034},
      {"Iy", 7e-05},
      {"yo", 4e-05}}},
    {"LWJBZ",
     "h b a t",
     6,
     0.012,
     {{"θ", 0.0012},
      {"Ix1", 0.00065},
      {"Wx1", 0.0005},
      {"Iy1", 0.00092},
      {"iy1", 0.00016},
      {"Ix", 0.00034},
      {"Z140X50X20X2.5 Ix", 0.0051},
      {"Wxb", 0.0003},
      {"Z140X50X20X2.5 Wxb", 0.0051},
      {"Iy", 0.0056},
      {"Wya", 0.0057},
      {"Wyb", 0.0033},
      {"Iw", 0.074},
      {"k", 0.037},
      {"Ww1", 0.074},
      {"Ww2", 0.072},
      {"Wy1", 0.00064},
      {"Wxa", 0.00031},
      {"Z140X50X20X2.5 Wxa", 0.0048},
      {"iy", 0.0017},
      {"Ix1y1", 0.00081},
      {"ix1", 5e-05}}},
    {"LWXJBZ",
     "h b a t",
     6,
     0.003,
     {{"θ", 0.00026},
      {"Ix1", 0.00033},
      {"Wx1", 0.0003},
      {"Z250X75X20X2.0 Wx1", 0.0028},
      {"Iy1", 0.00015},
      {"Wy1", 0.00014},
      {"Ix", 0.00024},
      {"Wxa", 0.0002},
      {"Wxb", 0.00026},
      {"Z250X75X20X2.5 Wxb", 0.011},
      {"Z250X75X20X2.2 Wxb", 0.0092},
      {"Z250X75X20X2.0 Wxb", 0.0084},
      {"Iy", 0.00089},
      {"Wya", 0.0012},
      {"Wyb", 0.00056},
      {"iy", 0.00063},
      {"Z140X50X20X2.5 iy", 0.0053},
      {"Ix1y1", 4e-05},
      {"Iw", 0.0092},
      {"Ww1", 0.00021},
      {"Ww2", 0.035},
      {"ix1", 7e-05},
      {"ix", 5e-05},
      {"iy1", 3e-05}}},
    {"LWRECT",
     "h t",
     6,
     0.003,
     {{"Ix", 0.00093}, {"25X1.5 Ix", 0.0023}, {"Wx", 0.00092}, {"G", 0.00071}}},
    {"LWCIR", "d t", 6, 0.003, {}},
    {"PFTIRON",
     "",
     3,
     0.003,
     {{"G", 0.0036},
      {"Wy", 7e-05},
      {"Wx", 0.00014},
      {"TM75X100 Wx", 0.0041},
      {"TN223X199 A", 0.0014},
      {"Iy", 0.00012}}},
};

using CRow = std::vector<std::string>;

class CCatalogueCsv {
 public:
  explicit CCatalogueCsv(const std::string& name) {
    std::string bytes;
    const std::string path = std::string(ORV3CAL_CATALOGUE_CSV "/") + name + ".csv";
    EXPECT_EQ(orv3::ReadWholeFile(orv3::FromUtf8(path), bytes), orv3::CFileError::None) << path;
    orv3::CCsvReader csv(std::move(bytes));
    std::vector<std::string_view> cells;
    csv.Next(cells);
    for (const std::string_view sign : cells) m_arrSymbol.push_back(Symbol(std::string(sign)));
    while (csv.Next(cells)) m_arrRow.emplace_back(cells.begin(), cells.end());
  }

  CValues Values(const CRow& row) const {
    CValues values;
    for (std::size_t i = 1; i < row.size(); ++i)
      values[m_arrSymbol[i]] = orv3::ToDouble(orv3::FromUtf8(row[i]));
    return values;
  }

  std::vector<std::string> m_arrSymbol;  // of the columns
  std::vector<CRow> m_arrRow;

 private:
  // What stands before the unit: "Ix" of "Ix(cm^4)", "P(0.6m)" of "P(0.6m)(kN)".
  static std::string Symbol(const std::string& sign) { return sign.substr(0, sign.rfind('(')); }
};

const std::set<std::string> kSizes{"H",  "h",  "B",  "b",  "d", "a", "t",
                                   "t1", "t2", "tw", "tf", "r", "r1"};

double UnitOfLastDigit(const CTable& table, const std::string& symbol, const std::string& text) {
  const std::size_t point = text.find('.');
  const double decimals =
      point == std::string::npos ? 0 : static_cast<double>(text.size() - point - 1);
  const double value = std::abs(orv3::ToDouble(orv3::FromUtf8(text)));
  const int digits = table.m_nDigits + (symbol == "A" ? 1 : 0);
  const double significant = std::floor(std::log10(std::max(value, 1e-9))) - digits + 1;
  return std::pow(10, std::max(-decimals, significant));
}

double DeviationOf(const CTable& table, const std::string& no, const std::string& symbol) {
  auto found = table.m_mapDeviation.find(no + " " + symbol);
  if (found == table.m_mapDeviation.end()) found = table.m_mapDeviation.find(symbol);
  return found == table.m_mapDeviation.end() ? 0 : found->second;
}

bool Agrees(const CTable& table, const std::string& no, const std::string& symbol,
            const std::string& text, double expected) {
  const double printed = orv3::ToDouble(orv3::FromUtf8(text));
  return std::abs(printed - expected) <= 0.52 * UnitOfLastDigit(table, symbol, text) +
                                             DeviationOf(table, no, symbol) * std::abs(printed);
}

class RolledRows : public testing::TestWithParam<CTable> {};

TEST_P(RolledRows, HoldWhatTheirSizesGive) {
  const CTable& table = GetParam();
  const CCatalogueCsv csv(table.m_szFile);
  ASSERT_FALSE(csv.m_arrRow.empty());
  for (const CRow& row : csv.m_arrRow) {
    const CValues expected = Expected(table.m_szFile, csv.Values(row));
    for (std::size_t i = 1; i < row.size(); ++i) {
      const std::string& symbol = csv.m_arrSymbol[i];
      const auto found = expected.find(symbol);
      if (found != expected.end())
        EXPECT_TRUE(Agrees(table, row[0], symbol, row[i], found->second))
            << row[0] << " " << symbol << ": " << row[i] << ", the sizes give " << found->second;
      else
        EXPECT_TRUE(kSizes.count(symbol)) << symbol << " is not checked";
    }
  }
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
  const CTable& table = GetParam();
  if (*table.m_szName == 0) return;
  const CCatalogueCsv csv(table.m_szFile);
  for (const CRow& row : csv.m_arrRow) {
    const CValues values = csv.Values(row);
    std::vector<double> sizes;
    for (std::string rest = table.m_szName; !rest.empty();) {
      const std::string symbol = rest.substr(0, rest.find(' '));
      rest.erase(0, symbol.size() + 1);
      sizes.push_back(symbol == "h/10" ? values.at("h") / 10 : values.at(symbol));
    }
    EXPECT_EQ(NumbersIn(row[0]), sizes) << row[0];
  }
}

// The places of a text's digits that are printed figures, not zeros that fill up a whole number.
std::vector<std::size_t> Digits(const std::string& text, double unit) {
  std::vector<std::size_t> places;
  const std::size_t point = std::min(text.find('.'), text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const double worth = i < point
                             ? std::pow(10, static_cast<double>(point - i) - 1)
                             : std::pow(10, static_cast<double>(point) - static_cast<double>(i));
    if (i != point && worth > 0.9 * unit) places.push_back(i);
  }
  return places;
}

// Whether the column is one whose digits are changed below.
bool IsWatched(const std::string& symbol) {
  const bool inertia = symbol[0] == 'I' && symbol != "Iw" && symbol != "It";
  return inertia || symbol == "A" || symbol == "zo" || symbol == "xo" || symbol == "yo" ||
         symbol == "Cx";
}

// The check above is worth what it finds: each digit of an area, a moment of inertia or a distance
// of the centroid, changed by one, is seen: to the last one where a table has no deviation, except
// that of a figure halfway between two printed ones.
TEST_P(RolledRows, AreSeenToBeWrongWithOneDigitChanged) {
  const CTable& table = GetParam();
  const CCatalogueCsv csv(table.m_szFile);
  int changed = 0;
  for (const CRow& row : csv.m_arrRow) {
    const CValues expected = Expected(table.m_szFile, csv.Values(row));
    for (std::size_t column = 1; column < row.size(); ++column) {
      const std::string& symbol = csv.m_arrSymbol[column];
      if (!IsWatched(symbol)) continue;
      const double unit = UnitOfLastDigit(table, symbol, row[column]);
      const double right = expected.at(symbol);
      for (const std::size_t place : Digits(row[column], unit)) {
        for (const int step : {-1, 1}) {
          std::string text = row[column];
          const int digit = text[place] - '0' + step;
          if (digit < 0 || digit > 9) continue;
          text[place] = static_cast<char>('0' + digit);
          const double wrong = orv3::ToDouble(orv3::FromUtf8(text));
          const double worth = std::abs(wrong - orv3::ToDouble(orv3::FromUtf8(row[column])));
          if (std::abs(wrong - right) < 0.53 * unit) continue;
          if (DeviationOf(table, row[0], symbol) > 0 && worth < table.m_dResolution * right)
            continue;
          ++changed;
          EXPECT_FALSE(Agrees(table, row[0], symbol, text, right))
              << row[0] << " " << symbol << ": " << row[column] << " as " << text;
        }
      }
    }
  }
  EXPECT_GT(changed, static_cast<int>(4 * csv.m_arrRow.size()));
}

INSTANTIATE_TEST_SUITE_P(Tables, RolledRows, testing::ValuesIn(kTables),
                         [](const auto& tested) { return std::string(tested.param.m_szFile); });

}  // namespace
