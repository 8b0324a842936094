// The axes of a section as the columns of its table name them.
#pragma once

#include "framework/cstring.h"
#include "sections/picture/outline_picture.h"

namespace orv3 {

CAxisLetters RowAxisLetters(const CString& tableName);

}  // namespace orv3
