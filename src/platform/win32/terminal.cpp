#include "platform/terminal.h"

#include <io.h>

namespace orv3 {

bool ErrorIsTerminal() noexcept { return _isatty(2) != 0; }

}  // namespace orv3
