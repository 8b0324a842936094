// The schemas of docs/schema as they stood when the program was built.
#pragma once

#include <string_view>

namespace orv3::cli {

extern const std::string_view kBoltSchema;
extern const std::string_view kFilletSchema;
extern const std::string_view kButtSchema;
extern const std::string_view kWeldGroupSchema;
extern const std::string_view kLatticeSchema;
extern const std::string_view kMemberSchema;

}  // namespace orv3::cli
