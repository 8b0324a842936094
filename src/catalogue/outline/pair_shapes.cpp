// Pairs of angles and channels, and the cross of two angles.
#include <algorithm>
#include <iterator>
#include <utility>

#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "catalogue/outline/shapes.h"
#include "sections/geometry/families.h"
#include "sections/load_data_table.h"

namespace orv3 {
namespace {

// How two equal parts stand to each other. An angle has its heel at the lower left, a channel its
// back on the left.
enum class CPairForm {
  BackToBack,  // the part and its mirror image, backs facing
  LegsUp,      // the same of an angle turned so that its short leg stands
  ToeToToe,    // the part and its mirror image, open sides facing
  Cross,       // the part and the same turned by 180 degrees about the heel
};

struct CPairTable {
  const wchar_t* m_szTable;
  const wchar_t* m_szPart;  // table of the parts
  int m_nMarker;            // leading characters of "No." that mark the pair
  CPairForm m_nForm;
  const wchar_t* m_szWidth;   // the part's size along x, as it stands in the pair
  const wchar_t* m_szHeight;  // and along y
};

constexpr CPairTable kPairs[] = {
    {L"热轧等边角钢组合", L"热轧等边角钢", 1, CPairForm::BackToBack, L"b", L"b"},
    {L"热轧不等边角钢长边组合", L"热轧不等边角钢", 1, CPairForm::BackToBack, L"b", L"B"},
    {L"热轧不等边角钢短边组合", L"热轧不等边角钢", 1, CPairForm::LegsUp, L"B", L"b"},
    {L"热轧等边角钢十字组合", L"热轧等边角钢", 1, CPairForm::Cross, L"b", L"b"},
    {L"热轧普通槽钢][组合", L"热轧普通槽钢", 3, CPairForm::BackToBack, L"b", L"h"},
    {L"热轧普通槽钢[]组合", L"热轧普通槽钢", 3, CPairForm::ToeToToe, L"b", L"h"},
    {L"热轧轻型槽钢][组合", L"热轧轻型槽钢", 3, CPairForm::BackToBack, L"b", L"h"},
    {L"热轧轻型槽钢[]组合", L"热轧轻型槽钢", 3, CPairForm::ToeToToe, L"b", L"h"},
};

const CPairTable* FindPair(const CString& tableName) {
  const auto pair = std::find_if(std::begin(kPairs), std::end(kPairs),
                                 [&](const CPairTable& p) { return tableName == p.m_szTable; });
  return pair == std::end(kPairs) ? nullptr : pair;
}

void AddMoved(COutline& to, const std::vector<CPath>& loops, double dx, double dy) {
  for (const CPath& loop : loops) to.m_arrLoop.push_back(Moved(loop, dx, dy));
}

// A turned over on its mirror line x = 0, back in its enclosing rectangle.
COutline Mirrored(COutline outline) {
  for (CPath& loop : outline.m_arrLoop)
    loop = Moved(MirroredX(std::move(loop)), outline.m_dWidth, 0);
  return outline;
}

COutline SideBySide(const COutline& left, const COutline& right, double gap) {
  COutline both{left.m_arrLoop, left.m_dWidth + gap + right.m_dWidth, left.m_dHeight};
  AddMoved(both, right.m_arrLoop, left.m_dWidth + gap, 0);
  return both;
}

COutline CrossOf(const COutline& part, double gap) {
  COutline both{{}, 2 * part.m_dWidth + gap, 2 * part.m_dHeight + gap};
  AddMoved(both, QuarterTurned(part, 2).m_arrLoop, 0, 0);
  AddMoved(both, part.m_arrLoop, part.m_dWidth + gap, part.m_dHeight + gap);
  return both;
}

// The part as it stands on the right.
COutline StandingPart(const CPairTable& pair, const CString& no) {
  COutline part = RowOutline(CLoadDataTable::GetSysTemJMItem(pair.m_szPart, no));
  if (pair.m_nForm == CPairForm::ToeToToe) return Mirrored(std::move(part));
  // The mirror image turned back lies on its long leg, heel again at the lower left.
  if (pair.m_nForm == CPairForm::LegsUp) return QuarterTurned(Mirrored(std::move(part)), 3);
  return part;
}

}  // namespace

bool IsPairTable(const CString& tableName) { return FindPair(tableName) != nullptr; }

CString PairSpacingSign(const CString& tableName) {
  const CFamily* family = FindFamily(tableName);
  return family == nullptr ? CString() : CString(family->m_pair.m_spacing.Sign());
}

CDataItem WithPairSpacing(CDataItem row, int spacing) {
  const CString sign = PairSpacingSign(row.GetTableName());
  if (sign.IsEmpty() || row.IsEmpty()) return row;
  if (row.GetCellSign(1) == sign) row.m_arrCell.RemoveAt(1);
  const CDataTypeStruct column(L"肢距", sign, CDataTypeStruct::KVBT_INT, 0);
  row.m_arrCell.InsertAt(1, CDataCell(column, FormatInt(spacing)));
  return row;
}

CPair PairOf(const CDataItem& row) {
  const CPairTable* pair = FindPair(row.GetTableName());
  if (pair == nullptr || row.IsEmpty()) return {};
  const bool cross = pair->m_nForm == CPairForm::Cross;
  const CString spacing = PairSpacingSign(row.GetTableName());
  const double gap = spacing.IsEmpty() ? 0 : ChosenSpacing(row, spacing);
  if (gap < 0) return {};
  const COutline part = StandingPart(*pair, row[0].m_strValue.Mid(pair->m_nMarker));
  if (part.m_arrLoop.empty()) return {};
  return {cross ? CrossOf(part, gap) : SideBySide(Mirrored(part), part, gap),
          part,
          gap,
          pair->m_szWidth,
          pair->m_szHeight,
          cross ? L"δ" : L"a"};
}

}  // namespace orv3
