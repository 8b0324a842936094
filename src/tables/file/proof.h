// What a save is about to write, decoded again before the file is touched.
//
// The bytes of a record, a heading or a row, and true when a reader finds in them what was to be
// kept: all of it, or in a heading or row that fills its field what stands before its end, the rest
// being empty. False when it would be unreadable, or a value would come back as another or in
// another column; `why` then says so in one clause.
#pragma once

#include <string>

#include "framework/cstring.h"
#include "tables/data_item.h"
#include "tables/data_type.h"
#include "tables/file/info.h"

namespace orv3 {

// A record that reaches to the end of its field cannot be told from a cut one: it is refused.
bool EncodeRecord(const CDataFileInfo& info, std::string& field, CString& why);
bool EncodeHeading(const CDataTableTitle& title, std::string& area, CString& why);
// With an edit state of its own choosing.
bool EncodeRow(const CDataItem& row, int state, const CDataTableTitle& title, std::string& slot,
               CString& why);
// Whether a row stands in a slot (its bytes up to the first zero) as a save would leave it there.
bool StandsIn(const CDataItem& row, std::string_view slot, const CDataTableTitle& title);

}  // namespace orv3
