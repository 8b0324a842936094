// Columns in axial compression: buckling class and stability factor. GB 50017-2017, Tables 7.2.1-1,
// 7.2.1-2 and Appendix D; GB 50017-2003, Tables 5.1.2-1, 5.1.2-2 and Appendix C.
#pragma once

#include <span>
#include <string_view>

#include "codes/steel_grade.h"

namespace orv3 {

enum class CBucklingClass { A, B, C, D };

// What the tables tell apart.
enum class CBucklingShape {
  RolledTube,
  WeldedTube,
  RolledINarrow,  // rolled I and H, b/h <= 0.8
  RolledIWide,    // b/h > 0.8
  WeldedIFlameCut,
  WeldedIRolled,  // flanges rolled or sheared
  RolledT,
  WeldedTFlameCut,
  WeldedTRolled,
  RolledChannel,
  RolledEqualAngle,
  RolledUnequalAngle,
  WeldedBox,       // b/t > 20
  WeldedBoxThick,  // b/t <= 20
  RolledBox,       // rolled rectangular and square tubes
  Solid,           // rolled solid bars
  Lattice,
};
inline constexpr const char* kBucklingShapeNames[] = {"rolled-tube",
                                                      "welded-tube",
                                                      "rolled-i-narrow",
                                                      "rolled-i-wide",
                                                      "welded-i-flame-cut",
                                                      "welded-i-rolled",
                                                      "rolled-t",
                                                      "welded-t-flame-cut",
                                                      "welded-t-rolled",
                                                      "rolled-channel",
                                                      "rolled-equal-angle",
                                                      "rolled-unequal-angle",
                                                      "welded-box",
                                                      "welded-box-thick",
                                                      "rolled-box",
                                                      "solid",
                                                      "lattice"};
constexpr const char* BucklingShapeName(CBucklingShape shape) noexcept {
  return kBucklingShapeNames[static_cast<std::size_t>(shape)];
}

// The class about an axis as the table prints it: a* (2017) is b for Q235 and a for higher grades,
// b* is c for Q235 and b for higher grades.
struct CPrintedClass {
  CBucklingClass m_nClass;  // of the higher grades
  bool m_bStar;
  ORV3CAL_API const char* Text() const noexcept;
  CBucklingClass For(CSteelGrade grade) const noexcept {
    return m_bStar && grade == CSteelGrade::Q235
               ? static_cast<CBucklingClass>(static_cast<int>(m_nClass) + 1)
               : m_nClass;
  }
};

enum class CSectionAxis { X, Y };

// t: thickest plate in mm, above 0; from 40 mm on the second table holds, which has no row for
// tubes, tees, channels, angles, solid shapes and lattices: refused there.
ORV3CAL_API CCodeAnswer<CPrintedClass> PrintedBucklingClass(CCodeEdition edition,
                                                            CBucklingShape shape, CSectionAxis axis,
                                                            double t);
// The same, for a steel.
ORV3CAL_API CCodeAnswer<CBucklingClass> BucklingClass(CCodeEdition edition, CBucklingShape shape,
                                                      CSectionAxis axis, double t,
                                                      CSteelGrade grade);

// phi of Appendix D (2003: Appendix C), the same formula in both editions. lambda >= 0, finite; fy
// the nominal yield strength, N/mm2, > 0.
ORV3CAL_API double StabilityFactor(double lambda, double fy, CBucklingClass bucklingClass) noexcept;
// With its source; lambda 0 to 1000 and fy 100 to 1000, others are refused.
ORV3CAL_API CCodeAnswer<double> StabilityFactor(CCodeEdition edition, double lambda, double fy,
                                                CBucklingClass bucklingClass);

}  // namespace orv3
