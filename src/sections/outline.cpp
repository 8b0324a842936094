#include "sections/outline.h"

#include <algorithm>
#include <cmath>

#include "sections/styles/style_form.h"

namespace orv3 {

COutline SectionOutline(int style, std::span<const double, kSectionSizes> sizes) {
  const CSectionStyle* known = FindSectionStyle(style);
  if (known == nullptr) return {};
  // Finite sizes far below the largest double keep every sum finite.
  const auto used = sizes.first(known->Sizes().size());
  if (!std::all_of(used.begin(), used.end(), [](double s) { return std::fabs(s) < 1e300; }))
    return {};
  return known->m_pForm->m_pOutline(sizes);
}

}  // namespace orv3
