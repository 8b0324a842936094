// A message of the library as a message box.
#pragma once

#include "framework/message.h"

namespace orv3 {

// A box that the active window owns (OwnerWindow) and that carries its caption when the message has
// no title. Without an owner it stands before every window of the thread.
CMessageAnswer ShowMessageBox(const CMessage& message);

}  // namespace orv3
