// The layout of record stores: "SYSTEMJMTABLE.LV" with up to 16 groups of section records,
// "USERJMTABLE.LV" and "CURRENTJMTABLE.LV" with one.
//
// Integers are 32-bit signed, doubles binary64, characters UTF-16, all little-endian.
//
//   offset            size  content
//   0                 5     unused
//   5                 12    file header: -1, number of groups (16 or 1), 0
//   50 (g + 1)        12    header of group g: its number, offset of its first slot, slots in use
//   5000 + 45000 g    450   each: the slots of group g at first; a group moves on by 45000 whenever
//                           an earlier one grows up to it
//
// A slot is a record's image and 50 unused bytes:
//
//   0     8    unused
//   8     100  name, 50 characters: padded with spaces, then character 47 "(" for a deleted record
//              and U+0001 for any other, 48 in a store of one group the style number plus 20, 49
//              zero
//   108   4    state, always 0
//   112   4    style
//   116   4    unused
//   120   216  base point (x, y) and the 25 properties
//   336   64   sizes s0 to s7
#pragma once

#include <array>
#include <cstdint>

#include "sections/steel_jm_data.h"

namespace orv3 {

inline constexpr int kRecordImage = 400;
inline constexpr int kRecordSlot = 450;
inline constexpr int kSystemGroups = 16;
inline constexpr int kSingleGroup = -1;  // the group number of a store with one group
inline constexpr int kHeaderAt = 5;
inline constexpr int kGroupHeaderStep = 50;
inline constexpr int kGroupHeadersEnd = 850;
inline constexpr int kFirstSlot = 5000;
inline constexpr int kGroupStep = 45000;

inline constexpr wchar_t kSystemRecords[] = L"SYSTEMJMTABLE.LV";
inline constexpr wchar_t kUserRecords[] = L"USERJMTABLE.LV";
inline constexpr wchar_t kCurrentRecords[] = L"CURRENTJMTABLE.LV";

// Where a group's header is.
constexpr int GroupHeaderAt(int group) {
  return group == kSingleGroup ? kGroupHeaderStep : (group + 1) * kGroupHeaderStep;
}

using CRecordImage = std::array<unsigned char, kRecordImage>;

CRecordImage EncodeRecord(const CSteelJMData& record, bool singleGroup);
// False for a slot without a record: its first size is not above 0.
bool DecodeRecord(const CRecordImage& image, CSteelJMData& record);

}  // namespace orv3
