// High-strength bolts of the friction type: GB 50017-2017, 11.4.2; GB 50017-2003, 7.2.2.
#pragma once

#include "codes/bolt_strength.h"

namespace orv3 {

// How many treatments of the surface an edition tells apart, and what a number stands for: 2017 0
// to 2, 2003 0 to 4, in the order of Tables 11.4.2-1 and 7.2.2-1.
ORV3CAL_API int SurfaceCount(CCodeEdition edition) noexcept;
ORV3CAL_API CTextLiteral SurfaceName(CCodeEdition edition, int surface);

// mu. Refused: a surface that the edition does not have, or for which it has no figure ("-") with
// this steel.
ORV3CAL_API CCodeAnswer<double> SlipFactor(CCodeEdition edition, int surface, CSteelGrade grade);

enum class CHoleKind { Standard, Oversize, SlotAcross, SlotAlong };  // slots by the force
inline constexpr const char* kHoleNames[] = {"standard", "oversize", "slot-across", "slot-along"};
constexpr const char* HoleName(CHoleKind kind) noexcept {
  return kHoleNames[static_cast<std::size_t>(kind)];
}

// k of the slip resistance 0.9 k nf mu P. The 2003 edition has standard holes alone.
ORV3CAL_API CCodeAnswer<double> HoleFactor(CCodeEdition edition, CHoleKind kind);

// P in kN of one bolt of 8.8 or 10.9; d 16, 20, 22, 24, 27 or 30 mm.
ORV3CAL_API CCodeAnswer<double> Preload(CCodeEdition edition, CBoltGrade grade, double d);

}  // namespace orv3
