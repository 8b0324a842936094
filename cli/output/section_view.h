// A user-defined section as a picture, for the commands that show one.
#pragma once

#include <string>

#include "outlines/exact_properties.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3::cli {

// The sample section of a style, computed.
CSteelJMData SampleSection(const CSectionStyle& style);

CExactProperties ExactOf(const CSteelJMData& record);

// The picture of a computed record, drawn to scale with what its exact properties mark; `name` is
// UTF-8.
std::string SectionSvg(const CSectionStyle& style, const CSteelJMData& record,
                       const CExactProperties& exact, const std::string& name);

// The outline of a record for drawing programs (drawing_dxf.h). The sizes must bound a section.
std::string SectionDxf(const CSteelJMData& record);

}  // namespace orv3::cli
