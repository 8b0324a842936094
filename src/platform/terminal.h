// Whether a program's output goes to somebody's eyes.
#pragma once

#include "framework/export.h"

namespace orv3 {

// Whether standard error is a terminal.
ORV3CAL_API bool ErrorIsTerminal() noexcept;

}  // namespace orv3
