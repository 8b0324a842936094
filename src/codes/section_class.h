// Section classes S1 to S5 by the width-to-thickness ratio of a plate: GB 50017-2017, Table 3.5.1.
#pragma once

#include <array>
#include <optional>

#include "codes/steel_grade.h"

namespace orv3 {

enum class CSectionClass { S1, S2, S3, S4, S5 };
inline constexpr const char* kSectionClassNames[] = {"S1", "S2", "S3", "S4", "S5"};
constexpr const char* SectionClassName(CSectionClass sectionClass) noexcept {
  return kSectionClassNames[static_cast<std::size_t>(sectionClass)];
}

enum class CClassElement {
  FlangeOutstand,  // b/t of I and T
  WebBending,      // h0/tw of I in bending; of a box about one axis too
  WebCompressed,   // h0/tw of I with compression, by alpha0
  BoxFlange,       // b0/t between the webs, in bending
  BoxWall,         // b0/t with compression
  Tube,            // D/t
};

// The greatest ratios of S1 to S5; the table has no S5 for boxes and tubes.
struct CClassLimits {
  std::array<std::optional<double>, 5> m_arrLimit;
  // The class of a ratio; none beyond the last limit.
  ORV3CAL_API std::optional<CSectionClass> ClassOf(double ratio) const noexcept;
};

// alpha0 = (sigma-max - sigma-min) / sigma-max, 0 to 2, of a web with compression (1.1: tension
// negative). The 2003 edition has no classes.
ORV3CAL_API CCodeAnswer<CClassLimits> ClassLimits(CCodeEdition edition, CClassElement element,
                                                  CSteelGrade grade, double alpha0 = 2);

}  // namespace orv3
