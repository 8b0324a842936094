// What is wrong with a text that is no JSON.
#pragma once

#include <exception>
#include <string>

#include "framework/language.h"

namespace orv3::cli {

// Of the parser's error and what it read last, which is quoted as far as it is short.
CText JsonFault(const std::string& token, const std::exception& error);

}  // namespace orv3::cli
