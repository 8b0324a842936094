#include "codes/slenderness_limits.h"

namespace orv3 {

CCodeAnswer<double> SlendernessLimit(CCodeEdition edition, CMemberRole role) {
  static constexpr double kLimit[] = {150, 200, 350, 250, 400};
  const bool bCompressed =
      role == CMemberRole::Compression || role == CMemberRole::CompressionBracing;
  CTextLiteral place = {"5.3.9 表 5.3.9", "5.3.9, Table 5.3.9"};
  if (edition == CCodeEdition::Gb2017) {
    place = bCompressed ? CTextLiteral{"7.4.6 表 7.4.6", "7.4.6, Table 7.4.6"}
                        : CTextLiteral{"7.4.7 表 7.4.7", "7.4.7, Table 7.4.7"};
  } else if (bCompressed) {
    place = {"5.3.8 表 5.3.8", "5.3.8, Table 5.3.8"};
  }
  return {kLimit[static_cast<std::size_t>(role)], {edition, place}};
}

}  // namespace orv3
