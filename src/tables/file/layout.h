// The layout of table files (".KDB").
//
// One file holds several tables. Each owns row slots of fixed length, grouped in blocks; the
// directory at the end of the file names the tables and their blocks. Every text is in fake form
// (see table_text.h) and ended by a zero byte, in a field of fixed length; a text that fills its
// field has no zero byte.
//
//   offset       length        content
//   0            20100         unused
//   20100        blocks        in the order in which they were reserved
//   end - 20100  100           information line
//   end - 20000  200 each      table records; the first without a name ends them, 99 at most
//   end - 1      1             "#"
//
// With n columns: a row slot has 33 n + 25 bytes, a block room for 100 slots. A table's first block
// starts with its heading (100 n bytes), so slots 0 to 95 fit behind it; block k holds the slots
// 100 k - 4 to 100 k + 95.
#pragma once

#include <cstdint>
#include <limits>

namespace orv3 {

inline constexpr wchar_t kTableMagic[] = L"KvbTable_1.0_2005_3";
inline constexpr int kUnusedHead = 20100;
inline constexpr int kDirectorySize = 20100;
inline constexpr int kInfoLineSize = 100;
inline constexpr int kRecordSize = 200;
inline constexpr int kMaxTables = (kDirectorySize - kInfoLineSize - 1) / kRecordSize;
inline constexpr int kBlockSlots = 100;
inline constexpr std::int64_t kMaxTableFile = std::numeric_limits<std::int32_t>::max();
static_assert(kMaxTables == 99);

constexpr std::int64_t SlotLength(std::int64_t columns) { return 33 * columns + 25; }
constexpr std::int64_t HeadingLength(std::int64_t columns) { return 100 * columns; }
constexpr std::int64_t BlockLength(std::int64_t columns) {
  return kBlockSlots * SlotLength(columns);
}
static_assert(BlockLength(39) == 3300 * 39 + 2500);
// The heading fits the room of the 4 slots that block 0 has less: 100 n <= 4 (33 n + 25).
static_assert(HeadingLength(1000) <= 4 * SlotLength(1000));

// Whether a slot length is that of a whole number of columns, and of how many.
constexpr bool IsSlotLength(int length) { return length >= 25 && (length - 25) % 33 == 0; }
constexpr int ColumnsOf(int slotLength) { return (slotLength - 25) / 33; }

// Blocks reserved for a number of rows, and the block and the place in it of a row.
constexpr int BlocksFor(int rows) {
  return static_cast<int>((std::int64_t{rows} + 4) / kBlockSlots) + 1;
}
constexpr int BlockOf(int row) { return static_cast<int>((std::int64_t{row} + 4) / kBlockSlots); }
constexpr int FirstRowOf(int block) { return block == 0 ? 0 : kBlockSlots * block - 4; }
static_assert(BlocksFor(95) == 1 && BlocksFor(96) == 2);
static_assert(BlockOf(95) == 0 && BlockOf(96) == 1 && FirstRowOf(1) == 96);

// Where a row's slot starts within its block.
constexpr std::int64_t SlotInBlock(int row, int columns) {
  const int block = BlockOf(row);
  const std::int64_t slots = row - FirstRowOf(block);
  return (block == 0 ? HeadingLength(columns) : 0) + slots * SlotLength(columns);
}

}  // namespace orv3
