// The library's messages as message boxes.
#pragma once

namespace orv3 {

// From now on each message is a box that the active window owns.
void UseMessageBoxes();

}  // namespace orv3
