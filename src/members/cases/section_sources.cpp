#include "members/cases/section_sources.h"

#include <cmath>

#include "framework/utf8.h"
#include "sections/geometry/families.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

CText Printed(std::wstring_view sign) {
  const std::string cell = ToUtf8(CString(std::wstring(sign).c_str()));
  return {"表列 " + cell, "printed cell " + cell};
}

const CText kFromCells = {"由表列尺寸计算", "from the sizes in the row's cells"};
const CText kFromSizes = {"由尺寸精确计算", "exact, of the sizes"};
const CText kFromOutline = {"由轮廓精确计算", "exact, of the outline"};

class CSources {
 public:
  CSources(const CDataItem& row, const CMemberRow& member)
      : m_row(row),
        s(member.m_section),
        m_pFamily(FindFamily(row.m_strTableName.View())),
        m_bSizes(FindSectionStyle(row.m_strTableName.View()) != nullptr),
        m_bExact(member.m_bExact) {}

  std::vector<CUsedProperty> All() {
    using F = CFamily;
    Add("A", {"面积", "area"}, s.m_dA, "mm²", Cell(L"A(cm^2)"));
    Add("I_x", {"惯性矩", "moment of inertia"}, s.m_dIx, "mm⁴", Source(&F::m_Ix));
    Add("I_y", {"惯性矩", "moment of inertia"}, s.m_dIy, "mm⁴", Source(&F::m_Iy));
    Add("i_x", {"回转半径", "radius of gyration"}, s.m_dRx, "mm", Source(&F::m_ix));
    Add("i_y", {"回转半径", "radius of gyration"}, s.m_dRy, "mm", Source(&F::m_iy));
    if (s.m_nShape == CMemberShape::Angle)
      Add("i_{min}", {"最小回转半径", "least radius of gyration"}, s.m_dRmin, "mm",
          Source(&F::m_leastR));
    if (!IsAngleShape(s.m_nShape)) Moduli();
    if (m_bExact) Torsion();
    return std::move(m_arrUsed);
  }

 private:
  void Moduli() {
    using F = CFamily;
    Add("W_{x1}", {"上边缘截面模量", "modulus of the upper edge"}, s.m_dWTop, "mm³",
        Source(&F::m_Wx1));
    Add("W_{x2}", {"下边缘截面模量", "modulus of the lower edge"}, s.m_dWBottom, "mm³",
        Source(&F::m_Wx2));
    Add("W_y", {"截面模量（较小侧）", "modulus, the lesser of both sides"}, s.m_dWSide, "mm³",
        Source(&F::m_WyL));
    Add("S_x", {"面积矩", "first moment"}, s.m_cutY.m_dS, "mm³", Cell(L"Sx(cm^3)"));
  }

  void Torsion() {
    Add("I_t", {"自由扭转常数", "torsion constant"}, s.m_dIt, "mm⁴", kFromOutline);
    Add("I_ω", {"扇性惯性矩", "warping constant"}, s.m_dIw, "mm⁶", kFromOutline);
    Add("x_s", {"剪心到形心", "shear centre from the centroid"}, s.m_dXs, "mm", kFromOutline);
    Add("y_s", {"剪心到形心", "shear centre from the centroid"}, s.m_dYs, "mm", kFromOutline);
  }

  void Add(const char* written, CTextLiteral name, double value, const char* unit, CText source) {
    if (std::isfinite(value)) m_arrUsed.push_back({written, name, value, unit, std::move(source)});
  }

  CText Cell(const wchar_t* sign) const {
    if (m_bSizes) return kFromSizes;
    const int at = m_row.GetSignIndex(sign);
    return at >= 0 && !m_row[at].m_strValue.IsEmpty() ? Printed(sign) : kFromCells;
  }

  CText Source(CSource CFamily::*source) const {
    if (m_bSizes) return kFromSizes;
    const CSource& from = m_pFamily->*source;
    return from.m_formula == nullptr && !from.m_cell.IsEmpty() ? Printed(from.m_cell.Sign())
                                                               : kFromCells;
  }

  const CDataItem& m_row;
  const CMemberSection& s;
  const CFamily* m_pFamily;
  const bool m_bSizes, m_bExact;
  std::vector<CUsedProperty> m_arrUsed;
};

}  // namespace

std::vector<CUsedProperty> SectionSources(const CDataItem& row, const CMemberRow& member) {
  return CSources(row, member).All();
}

}  // namespace orv3
