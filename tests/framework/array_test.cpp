#include "framework/array.h"

#include <gtest/gtest.h>

#include <string>

#include "framework/kvb_math.h"

namespace {

using Numbers = CArray<int, int>;

Numbers Of(std::initializer_list<int> values) {
  Numbers numbers;
  for (const int value : values) numbers.Add(value);
  return numbers;
}

std::vector<int> Plain(const Numbers& numbers) { return {numbers.begin(), numbers.end()}; }

TEST(Array, GrowsShrinksAndCopies) {
  Numbers numbers = Of({1, 2, 3});
  numbers.InsertAt(0, 9, 2);
  numbers.InsertAt(5, 7);
  EXPECT_EQ(Plain(numbers), (std::vector<int>{9, 9, 1, 2, 3, 7}));
  numbers.RemoveAt(1, 3);
  EXPECT_EQ(Plain(numbers), (std::vector<int>{9, 3, 7}));
  EXPECT_EQ(numbers.Append(numbers), 3);
  EXPECT_EQ(Plain(numbers), (std::vector<int>{9, 3, 7, 9, 3, 7}));
  numbers.SetSize(1);
  numbers.SetSize(3);
  EXPECT_EQ(Plain(numbers), (std::vector<int>{9, 0, 0}));
}

TEST(Array, NamesTheIndexAndTheBound) {
  Numbers numbers = Of({1, 2, 3});
  EXPECT_THROW(numbers[-1], CInvalidArgException);
  EXPECT_THROW(numbers.SetAt(3, 0), CInvalidArgException);
  EXPECT_THROW(numbers.RemoveAt(1, 3), CInvalidArgException);
  EXPECT_THROW(numbers.InsertAt(4, 0), CInvalidArgException);
  EXPECT_THROW(numbers.SetSize(-1), CInvalidArgException);
  EXPECT_EQ(Plain(numbers), (std::vector<int>{1, 2, 3}));
  try {
    numbers.GetAt(7);
    FAIL() << "no exception";
  } catch (const std::invalid_argument& error) {
    EXPECT_NE(std::string(error.what()).find("7"), std::string::npos) << error.what();
    EXPECT_NE(std::string(error.what()).find("0..2"), std::string::npos) << error.what();
  }
}

TEST(KvbMath, ComparesWithinTheTolerance) {
  EXPECT_TRUE(CKvbMath::EqualTo(1, 1.0000009));
  EXPECT_FALSE(CKvbMath::EqualTo(1, 1.0000011));
  EXPECT_TRUE(CKvbMath::EqualTo(1, 1.01, 0.02));
  EXPECT_TRUE(CKvbMath::EqualMore(1, 1.0000009));
  EXPECT_FALSE(CKvbMath::EqualMore(1, 1.1));
  EXPECT_TRUE(CKvbMath::EqualLess(1.0000009, 1));
  EXPECT_FALSE(CKvbMath::EqualLess(1.1, 1));
}

}  // namespace
