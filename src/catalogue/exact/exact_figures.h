// The exact properties of the catalogue's rows, computed when the catalogue is made and kept in a
// file beside the store, so that they need not be computed again.
//
// A record is found by all that the outline is made from, and by nothing else: the table, the cells
// and those of the parts of pairs and lattice columns. A row that has been changed in any cell is
// computed. So no figure is ever that of other sizes. No row that has a record contradicts itself
// (row_doubts.h).
//
// Numbers are little-endian, doubles binary64 (NaN where there is no answer):
//
//   offset  size   content
//   0       8      "ORV3EXCT"
//   8       4      kExactVersion; a file of another version is passed over
//   12      4      number of records n, at most 100000
//   16      8      checksum of all that follows
//   24      304 n  records, their keys ascending
//
//   0       16     key: two numbers made from the rows' texts
//   16      248    the properties in the order of ExactKeys
//   264     32     the error estimates of It, Iw, centre, As
//   296     8      1: joined, 2: accurate
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"
#include "outlines/exact_properties.h"
#include "tables/data_item.h"

namespace orv3 {

// Raised whenever the outline of the same cells, or the figures of the same outline, change.
inline constexpr std::uint32_t kExactVersion = 6;
inline constexpr wchar_t kExactFile[] = L"KvbSystemJmDataBase.KXP";

using CExactRecordKey = std::array<std::uint64_t, 2>;

// Nothing for a row of no section table.
ORV3CAL_API std::optional<CExactRecordKey> ExactRecordKey(const CDataItem& row);

struct CExactRecord {
  CExactRecordKey m_key{};
  CExactProperties m_exact;
};

// The file of the records, of which equal keys count once; and back: nothing for bytes that are no
// such file, of another version, or damaged.
ORV3CAL_API std::string ExactFileBytes(std::vector<CExactRecord> records);
ORV3CAL_API std::optional<std::vector<CExactRecord>> ReadExactFile(std::string_view bytes);

// The figures of a row in the file of the program path, else in the one named last; nothing where
// neither has them. A file is read once.
ORV3CAL_API std::optional<CExactProperties> FindExact(const CDataItem& row);

// A second file to look in; empty for none. For the whole process.
ORV3CAL_API void SetExactFile(const CString& file);

}  // namespace orv3
