#include "codes/holes.h"

#include "codes/gb2017/tables.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

CHoleSize SizeOf(const gb2017::CHoleRow& row, CHoleKind kind) noexcept {
  switch (kind) {
    case CHoleKind::Standard:
      return {row.m_dStandard, row.m_dStandard};
    case CHoleKind::Oversize:
      return {row.m_dOversize, row.m_dOversize};
    case CHoleKind::SlotAcross:
    case CHoleKind::SlotAlong:
      break;
  }
  return {row.m_dSlotWidth, row.m_dSlotLength};
}

}  // namespace

CCodeAnswer<CHoleSize> HoleSize(CCodeEdition edition, CHoleKind kind, double d) {
  if (edition == CCodeEdition::Gb2003)
    return NotInEdition("code", edition, {"高强度螺栓孔型尺寸表", "table of hole sizes"},
                        {"请用 2017 版（表 11.5.1）", "take the 2017 edition (Table 11.5.1)"});
  for (const gb2017::CHoleRow& row : gb2017::kHoles) {
    if (row.m_dD == d)
      return {SizeOf(row, kind), {edition, {"11.5.1 表 11.5.1", "11.5.1, Table 11.5.1"}}};
  }
  return NotPossible(
      "d", d, {"请给出其一：12、16、20、22、24、27、30", "give one of 12, 16, 20, 22, 24, 27, 30"});
}

CCodeAnswer<CBoltSpacing> BoltSpacing(CCodeEdition edition, double d0, double t, CEdgeCut cut) {
  constexpr double kLargest = 1000;
  if (!(d0 > 0 && d0 <= kLargest)) return NotPossible("d0", d0, AboveZero(kLargest, "mm"));
  if (!(t > 0 && t <= kLargest)) return NotPossible("t", t, AboveZero(kLargest, "mm"));
  static constexpr CTextLiteral kTable2003 = {"8.3.4 表 8.3.4", "8.3.4, Table 8.3.4"};
  static constexpr CTextLiteral kTable2017 = {"11.5.2 表 11.5.2", "11.5.2, Table 11.5.2"};
  const CBoltSpacing spacing = {.m_dLeastPitch = 3 * d0,
                                .m_dMostPitch = std::min(8 * d0, 12 * t),
                                .m_dLeastEnd = 2 * d0,
                                .m_dLeastSide = (cut == CEdgeCut::Sheared ? 1.5 : 1.2) * d0,
                                .m_dMostEdge = std::min(4 * d0, 8 * t)};
  return {spacing, {edition, edition == CCodeEdition::Gb2003 ? kTable2003 : kTable2017}};
}

}  // namespace orv3
