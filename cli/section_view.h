// A user-defined section as the commands show it.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3 {

std::string SizeSymbol(const CSizeColumn& size);  // "tf" of "tf(mm)"

CSteelJMData SampleSection(const CSectionStyle& style);  // computed, without a name

// Of computed records of a style from 0 to 14.
void PrintSection(const CSteelJMData& section);
nlohmann::ordered_json SectionJson(const CSteelJMData& section);
std::string SectionSvg(const CSteelJMData& section);

}  // namespace orv3
