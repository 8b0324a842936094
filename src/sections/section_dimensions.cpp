#include "sections/section_dimensions.h"

#include "sections/styles/style_form.h"

namespace orv3 {

CDimensions SizeDimensions(int style, CSizes sizes) {
  const CSectionStyle* known = FindSectionStyle(style);
  return known ? known->m_pForm->m_pDimensions(sizes) : std::vector<CSizeDimension>{};
}

}  // namespace orv3
