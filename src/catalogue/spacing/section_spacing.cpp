#include "catalogue/spacing/section_spacing.h"

#include <algorithm>
#include <iterator>

#include "catalogue/spacing/spacing_rows.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

constexpr int kAngleTables = 3;
constexpr CSpacingColumn kAngle[] = {
    {"a", {"线距，距另一肢背", "bolt line, from the back of the other leg"}},
    {"hole", {"最大孔径", "largest bolt hole"}}};
constexpr CSpacingColumn kAngleLines[] = {
    {"a", {"第一排线距，距另一肢背", "first bolt line, from the back of the other leg"}},
    {"b", {"第二排线距，距第一排", "second bolt line, from the first"}},
    {"hole", {"最大孔径", "largest bolt hole"}}};
constexpr CSpacingColumn kBeamLines[] = {
    {"a", {"翼缘两排螺栓的间距", "between the two bolt lines of a flange"}},
    {"t", {"线距处翼缘厚度", "thickness of the flange at the bolt line"}},
    {"hole", {"翼缘最大孔径", "largest bolt hole in the flange"}},
    {"c",
     {"腹板最外排线距，距翼缘外侧",
      "outermost bolt line of the web, from the outer face of the flange"}},
    {"h1", {"腹板两圆弧间直段高度", "straight height of the web between the fillets"}},
    {"webHole", {"腹板最大孔径", "largest bolt hole in the web"}}};
constexpr CSpacingColumn kChannelLines[] = {
    {"a", {"翼缘线距，距槽钢背", "bolt line of a flange, from the back of the channel"}},
    kBeamLines[1],
    kBeamLines[2],
    kBeamLines[3],
    kBeamLines[4],
    kBeamLines[5]};
constexpr CSpacingColumn kStiffener[] = {
    {"outer", {"加劲肋外边高度", "height of the stiffener at its outer edge"}},
    {"inner", {"加劲肋在腹板处高度", "height of the stiffener at the web"}},
    {"width", {"加劲肋宽度", "width of the stiffener"}},
    {"corner", {"圆弧处切角", "cut of its corners at the fillets"}},
    {"web",
     {"其边缘距工字钢腹板中线或槽钢背",
      "its edge, from the middle of an I's web or the back of a channel"}},
    {"least", {"加劲肋最小厚度", "least thickness of the stiffener"}}};
constexpr CSpacingColumn kCope[] = {
    {"left", {"切口之间所余腹板高度", "height of web left between the copes"}},
    {"length", {"切口长度", "length of the cope"}},
    {"web",
     {"梁端距工字钢腹板中线或槽钢背",
      "end of the beam, from the middle of an I's web or the back of a channel"}},
    {"k", {"每一翼缘处切口深度", "depth of the cope at each flange"}}};

struct CKind {
  CTextLiteral m_title;
  std::span<const CSpacingColumn> m_arrColumn;
};
constexpr CKind kAngleKinds[kAngleTables] = {
    {{"单排螺栓", "one line of bolts"}, kAngle},
    {{"双排错列螺栓", "two staggered lines of bolts"}, kAngleLines},
    {{"双排并列螺栓", "two parallel lines of bolts"}, kAngleLines}};
constexpr CKind kPlateKinds[] = {
    {{"翼缘之间的加劲肋", "stiffener inside the flanges"}, std::span(kStiffener).first(5)},
    {{"与翼缘边齐平的加劲肋", "stiffener flush with the flanges' edges"}, kStiffener},
    {{"连接次梁的切口", "cope of a beam that frames in"}, kCope}};

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
  const auto* const found = std::find_if(std::begin(kSeries), std::end(kSeries),
                                         [&](const auto& each) { return each.m_kind == kind; });
  return found == std::end(kSeries) ? nullptr : found;
}

// The row with a key; the number of rows when there is none.
std::size_t RowOf(const CSpacingTable& table, std::wstring_view key) {
  std::size_t row = 0;
  while (row < table.Rows() && key.compare(table[row][0]) != 0) ++row;
  return row;
}

CSectionSpacing RowAt(int table, std::size_t row, const CKind& kind) {
  return {table + 1, kind.m_title, 0, kind.m_arrColumn, SpacingTable(table)[row].subspan(1)};
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
      RowAt(series.m_nLines, row, {{"线距", "bolt lines"}, series.m_arrLines})};
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
