#include "catalogue/rolled/angle_capacity.h"

#include "framework/number_text.h"
#include "sections/section_kind.h"

namespace orv3 {

bool HasAngleCapacities(const CString& tableName) {
  return FindSectionKind(tableName) == CSectionKind::EqualAngle;
}

std::vector<CAngleCapacity> AngleCapacities(const CDataItem& row) {
  std::vector<CAngleCapacity> capacities;
  double iyo = 0;  // cm
  if (!HasAngleCapacities(row.m_strTableName) || !row.GetCellValue(L"iyo(cm)", iyo) || !(iyo > 0))
    return capacities;
  for (int cell = 1; cell < row.GetItemLength(); ++cell) {
    const CString sign = row.GetCellSign(cell);
    if (sign.Left(2) != L"P(" || sign.Right(6) != L"m)(kN)") continue;
    const double length = ToDouble(sign.Mid(2));
    capacities.push_back({cell, length, 100 * length / iyo});
  }
  return capacities;
}

CTextLiteral AngleCapacityBasis() noexcept {
  return {
      "N = A f，P = φ A f：Q235钢，t≤16mm时f = 215 N/mm²，t>16mm时f = 205（GB "
      "50017-2003表3.4.1-1）；φ按b类截面（附录C），λ = "
      "L/iyo。轴心受力，未计单面连接单角钢的折减（3.4.2条）。λ超过150（支撑200）的受压构件不允许"
      "（5.3.8条），φ表止于250。",
      "N = A f, P = φ A f: steel Q235, f = 215 N/mm² up to t = 16 mm and 205 above (GB "
      "50017-2003, Table 3.4.1-1); φ of class b (Appendix C) with λ = L/iyo. Axial load, "
      "without the reduction of single angles connected by one leg (3.4.2). Struts beyond λ = "
      "150 (bracing 200) are not permitted (5.3.8); the tables of φ end at 250."};
}

}  // namespace orv3
