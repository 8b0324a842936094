// Pairs of angles and channels, and the cross of two angles.
#include <utility>

#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "catalogue/outline/shapes.h"
#include "sections/geometry/row_values.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

const CSectionPair* FindPair(const CString& tableName) {
  const CSectionTable* table = FindSectionTable(tableName);
  return table ? table->m_pPair : nullptr;
}

// The part's sizes along x and y, as it stands in the pair.
struct CPartSigns {
  const wchar_t* m_szWidth;
  const wchar_t* m_szHeight;
};

CPartSigns PartSigns(const CSectionPair& pair) {
  if (pair.m_part == CSectionKind::EqualAngle) return {L"b", L"b"};
  if (pair.m_part != CSectionKind::UnequalAngle) return {L"b", L"h"};
  return pair.m_form == CPairForm::LegsUp ? CPartSigns{L"B", L"b"} : CPartSigns{L"b", L"B"};
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
COutline StandingPart(const CSectionPair& pair, const CDataItem& row) {
  COutline part = RowOutline(PairPartRow(row));
  if (pair.m_form == CPairForm::ToeToToe) return Mirrored(std::move(part));
  // The mirror image turned back lies on its long leg, heel again at the lower left.
  if (pair.m_form == CPairForm::LegsUp) return QuarterTurned(Mirrored(std::move(part)), 3);
  return part;
}

}  // namespace

bool IsPairTable(const CString& tableName) { return FindPair(tableName) != nullptr; }

CDataItem PairPartRow(const CDataItem& row) {
  const CSectionPair* pair = FindPair(row.m_strTableName);
  if (pair == nullptr || row.IsEmpty()) return {};
  return ComponentRow(TableOf(pair->m_part).m_szName, row[0].m_strValue.Mid(pair->m_nMarker));
}

CString PairSpacingSign(const CString& tableName) {
  const CSectionPair* pair = FindPair(tableName);
  return pair == nullptr ? CString() : CString(pair->m_szGap);
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
  const CSectionPair* pair = FindPair(row.GetTableName());
  if (pair == nullptr || row.IsEmpty()) return {};
  const bool cross = pair->m_form == CPairForm::Cross;
  const CString spacing = pair->m_szGap;
  const double gap = spacing.IsEmpty() ? 0 : ChosenSpacing(row, spacing);
  if (gap < 0) return {};
  const COutline part = StandingPart(*pair, row);
  if (part.m_arrLoop.empty()) return {};
  const CPartSigns signs = PartSigns(*pair);
  return {cross ? CrossOf(part, gap) : SideBySide(Mirrored(part), part, gap),
          part,
          gap,
          signs.m_szWidth,
          signs.m_szHeight,
          cross ? L"δ" : L"a"};
}

}  // namespace orv3
