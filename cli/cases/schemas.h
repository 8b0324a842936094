// The schemas of docs/schema as they stood when the program was built.
#pragma once

#include <string_view>

namespace orv3::cli {

// Of a kind of input: "bolt" for bolt.schema.json. Empty for a kind without one.
std::string_view SchemaOf(std::string_view kind) noexcept;

}  // namespace orv3::cli
