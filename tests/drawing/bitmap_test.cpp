#include "drawing/bitmap.h"

#include <gtest/gtest.h>

#include "framework/exception.h"

namespace {

TEST(Bitmap, WritesAWindowsBitmapFile) {
  CBitmap bitmap(3, 2);
  bitmap.SetPixel(0, 0, 0x112233);
  bitmap.SetPixel(2, 1, 0xAABBCC);
  // File header, information header, then the bottom row first, each row filled up to 12 bytes.
  const std::vector<std::uint8_t> expected = {
      'B',  'M',  78,   0,    0,    0,    0,    0,    0,    0, 54, 0, 0,    0,
      40,   0,    0,    0,    3,    0,    0,    0,    2,    0, 0,  0, 1,    0,
      24,   0,    0,    0,    0,    0,    24,   0,    0,    0, 0,  0, 0,    0,
      0,    0,    0,    0,    0,    0,    0,    0,    0,    0, 0,  0,  // end of headers
      0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xCC, 0xBB, 0xAA, 0, 0,  0, 0x33, 0x22,
      0x11, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0,    0,    0};
  EXPECT_EQ(bitmap.ToBmp(), expected);
}

TEST(Bitmap, RefusesWhatIsOutside) {
  CBitmap bitmap(3, 2);
  EXPECT_THROW(bitmap.GetPixel(3, 0), CInvalidArgException);
  EXPECT_THROW(bitmap.SetPixel(0, -1, 0), CInvalidArgException);
  EXPECT_THROW(CBitmap(0, 5), CInvalidArgException);
  EXPECT_THROW(CBitmap(5, 1 << 30), CInvalidArgException);
}

}  // namespace
