#include "catalogue/spacing/section_spacing.h"

#include <algorithm>

#include "catalogue/spacing/spacing_rows.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

constexpr int kAngleTables = 3;
constexpr CSpacingColumn kAngle[] = {{"a", "bolt line, from the back of the other leg"},
                                     {"hole", "largest bolt hole"}};
constexpr CSpacingColumn kAngleLines[] = {{"a", "first bolt line, from the back of the other leg"},
                                          {"b", "second bolt line, from the first"},
                                          {"hole", "largest bolt hole"}};
constexpr CSpacingColumn kBeamLines[] = {
    {"a", "between the two bolt lines of a flange"},
    {"t", "thickness of the flange at the bolt line"},
    {"hole", "largest bolt hole in the flange"},
    {"c", "outermost bolt line of the web, from the outer face of the flange"},
    {"h1", "straight height of the web between the fillets"},
    {"webHole", "largest bolt hole in the web"}};
constexpr CSpacingColumn kChannelLines[] = {
    {"a", "bolt line of a flange, from the back of the channel"},
    kBeamLines[1],
    kBeamLines[2],
    kBeamLines[3],
    kBeamLines[4],
    kBeamLines[5]};
constexpr CSpacingColumn kStiffener[] = {
    {"outer", "height of the stiffener at its outer edge"},
    {"inner", "height of the stiffener at the web"},
    {"width", "width of the stiffener"},
    {"corner", "cut of its corners at the fillets"},
    {"web", "its edge, from the middle of an I's web or the back of a channel"},
    {"least", "least thickness of the stiffener"}};
constexpr CSpacingColumn kCope[] = {
    {"left", "height of web left between the copes"},
    {"length", "length of the cope"},
    {"web", "end of the beam, from the middle of an I's web or the back of a channel"},
    {"k", "depth of the cope at each flange"}};

struct CKind {
  const char* m_szTitle;
  std::span<const CSpacingColumn> m_arrColumn;
};
constexpr CKind kAngleKinds[kAngleTables] = {{"one line of bolts", kAngle},
                                             {"two staggered lines of bolts", kAngleLines},
                                             {"two parallel lines of bolts", kAngleLines}};
constexpr CKind kPlateKinds[] = {{"stiffener inside the flanges", std::span(kStiffener).first(5)},
                                 {"stiffener flush with the flanges' edges", kStiffener},
                                 {"cope of a beam that frames in", kCope}};

// The tables of a series, counted from 0: the gauge lines, then three in the order of kPlateKinds.
struct CSeries {
  CSectionKind m_kind;
  int m_nLines;
  int m_nPlates;
  std::span<const CSpacingColumn> m_arrLines;
};
constexpr CSeries kSeries[] = {{CSectionKind::OrdinaryI, 3, 7, kBeamLines},
                               {CSectionKind::LightI, 4, 10, kBeamLines},
                               {CSectionKind::OrdinaryChannel, 5, 13, kChannelLines},
                               {CSectionKind::LightChannel, 6, 16, kChannelLines}};

const CSeries* SeriesOf(std::optional<CSectionKind> kind) {
  const auto* const found = std::ranges::find(kSeries, kind, &CSeries::m_kind);
  return found == std::end(kSeries) ? nullptr : found;
}

// The row with a key; the number of rows when there is none.
std::size_t RowOf(const CSpacingTable& table, std::wstring_view key) {
  std::size_t row = 0;
  while (row < table.Rows() && key.compare(table[row][0]) != 0) ++row;
  return row;
}

CSectionSpacing RowAt(int table, std::size_t row, const CKind& kind) {
  return {table + 1, kind.m_szTitle, 0, kind.m_arrColumn, SpacingTable(table)[row].subspan(1)};
}

void AddLeg(int leg, std::vector<CSectionSpacing>& found) {
  for (int table = 0; table < kAngleTables; ++table) {
    const std::size_t row = RowOf(SpacingTable(table), FormatInt(leg));
    if (row == SpacingTable(table).Rows()) continue;
    found.push_back(RowAt(table, row, kAngleKinds[table]));
    found.back().m_nLeg = leg;
  }
}

std::vector<CSectionSpacing> AngleSpacings(const CLegs& legs) {
  std::vector<CSectionSpacing> found;
  AddLeg(legs.m_nLong, found);
  if (legs.m_nShort != legs.m_nLong) AddLeg(legs.m_nShort, found);
  return found;
}

std::vector<CSectionSpacing> SeriesSpacings(const CSeries& series, std::wstring_view no) {
  const std::size_t row = RowOf(SpacingTable(series.m_nPlates), no);
  if (row == SpacingTable(series.m_nPlates).Rows()) return {};
  std::vector<CSectionSpacing> found{
      RowAt(series.m_nLines, row, {"bolt lines", series.m_arrLines})};
  for (int i = 0; i < std::ssize(kPlateKinds); ++i) {
    found.push_back(RowAt(series.m_nPlates + i, row, kPlateKinds[i]));
  }
  return found;
}

}  // namespace

std::span<const CSectionKind> SpacedSections() noexcept {
  static constexpr CSectionKind kSections[] = {
      CSectionKind::EqualAngle, CSectionKind::UnequalAngle,    CSectionKind::OrdinaryI,
      CSectionKind::LightI,     CSectionKind::OrdinaryChannel, CSectionKind::LightChannel};
  return kSections;
}

std::vector<CString> SpacedNumbers(std::wstring_view tableName) {
  std::vector<CString> numbers;
  const CSeries* series = SeriesOf(FindSectionKind(tableName));
  if (series == nullptr) return numbers;
  const CSpacingTable table = SpacingTable(series->m_nPlates);
  for (std::size_t row = 0; row < table.Rows(); ++row) numbers.emplace_back(table[row][0]);
  return numbers;
}

CLegs LegsOf(std::wstring_view no) {
  if (!no.starts_with(L'L')) return {};
  int figures[3] = {};
  std::size_t count = 0;
  for (std::size_t at = 1; at <= no.size();) {
    const std::size_t end = std::min(no.find(L'X', at), no.size());
    if (count == std::size(figures) || !IsNumber(no.substr(at, end - at))) return {};
    figures[count++] = ToInt(no.substr(at, end - at));
    at = end + 1;
  }
  if (count < 2 || *std::min_element(figures, figures + count) <= 0) return {};
  return {figures[0], figures[count == 2 ? 0 : 1]};
}

std::vector<CSectionSpacing> SectionSpacings(std::wstring_view tableName, std::wstring_view no) {
  const auto kind = FindSectionKind(tableName);
  if (kind == CSectionKind::EqualAngle || kind == CSectionKind::UnequalAngle)
    return AngleSpacings(LegsOf(no));
  const CSeries* series = SeriesOf(kind);
  return series ? SeriesSpacings(*series, no) : std::vector<CSectionSpacing>();
}

}  // namespace orv3
