#include "platform/terminal.h"

#include <unistd.h>

namespace orv3 {

bool ErrorIsTerminal() noexcept { return isatty(STDERR_FILENO) == 1; }

}  // namespace orv3
