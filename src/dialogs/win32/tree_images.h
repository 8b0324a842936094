// The pictures of the browser's tree as an image list.
#pragma once

#include "dialogs/win32/gdi.h"

namespace orv3 {

CImages TreeImages(int dpi);

}  // namespace orv3
