// Single steps of the bolt group check, the behaviours that hosts know, and refusals.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "connections/bolt_input.h"

namespace {

using orv3::BoltGroup;

constexpr int kOrdinary = 0;
constexpr int kFriction = 1;
constexpr int kBearing = 2;

TEST(BoltSteps, HoleDiameter) {
  struct {
    int type, d;
    double d0;
  } cases[] = {{kOrdinary, 16, 17},  {kOrdinary, 18, 19.5}, {kOrdinary, 20, 21.5},
               {kFriction, 16, 18},  {kFriction, 30, 32},   {kBearing, 16, 17.5},
               {kBearing, 24, 25.5}, {7, 16, 17.5}};
  for (const auto& c : cases) {
    NormalBoltData group = BoltGroup({.type = c.type, .d = c.d});
    group.CalBoltKongD();
    EXPECT_EQ(group.m_dD0, c.d0) << c.type << ", M" << c.d;
  }
}

TEST(BoltSteps, EffectiveDiameterKeptWhenTheTableLacksIt) {
  NormalBoltData group = BoltGroup({.d = 27});
  group.CalBoltYouXiaoD();
  EXPECT_EQ(group.m_dDe, 24.19);
  group.m_nD = 26;
  group.CalBoltYouXiaoD();
  EXPECT_EQ(group.m_dDe, 24.19);
  group.m_nD = 100;
  group.CalBoltYouXiaoD();
  EXPECT_EQ(group.m_dDe, 94.37);
}

TEST(BoltSteps, SteelStrength) {
  struct {
    int steel;
    double t, f;
  } cases[] = {{0, 16, 0.215}, {0, 16.0000005, 0.215}, {0, 16.001, 0.205}, {0, 40, 0.205},
               {0, 60, 0.2},   {0, 61, 0.19},          {0, 200, 0.19},     {1, 35, 0.295},
               {1, 40, 0.265}, {2, 50, 0.315},         {2, 51, 0.295},     {3, 16, 0.38}};
  for (const auto& c : cases) {
    NormalBoltData group = BoltGroup({.t = c.t, .steel = c.steel});
    group.CalGangCaiQD();
    EXPECT_DOUBLE_EQ(group.m_dF, c.f) << c.steel << ", t = " << c.t;
  }
}

TEST(BoltSteps, BoltStrength) {
  constexpr double kKept = 0.777;  // stands for 777 that was there before
  struct {
    int type, boltClass, grade, steel;
    double ft, fv, fc;
  } cases[] = {
      {kOrdinary, 0, 0, 0, 0.170, 0.140, 0.305},
      {kOrdinary, 0, 1, 3, 0.170, 0.140, 0.425},
      {kOrdinary, 1, 2, 1, 0.210, 0.190, 0.510},
      {kOrdinary, 2, 3, 2, 0.400, 0.320, 0.530},
      {kBearing, 0, 0, 0, 0.400, 0.250, 0.470},
      {kBearing, 0, 1, 3, 0.500, 0.310, 0.655},
      // what is not looked up is scaled all the same
      {kOrdinary, 0, 2, 0, kKept, kKept, 0.305},
      {kOrdinary, 1, 0, 0, kKept, kKept, 0.405},
      {kOrdinary, 3, 2, 0, 0.210, 0.190, kKept},
      {kOrdinary, 0, 0, 4, 0.170, 0.140, kKept},
      {kBearing, 0, 2, -1, kKept, kKept, kKept},
      {kFriction, 0, 0, 0, kKept, kKept, kKept},
  };
  for (const auto& c : cases) {
    NormalBoltData group =
        BoltGroup({.type = c.type, .steel = c.steel, .grade = c.grade, .boltClass = c.boltClass});
    group.m_dFt = group.m_dFv = group.m_dFc = 777;
    group.CalCaiLiaoQD();
    EXPECT_DOUBLE_EQ(group.m_dFt, c.ft) << c.type << c.boltClass << c.grade << c.steel;
    EXPECT_DOUBLE_EQ(group.m_dFv, c.fv) << c.type << c.boltClass << c.grade << c.steel;
    EXPECT_DOUBLE_EQ(group.m_dFc, c.fc) << c.type << c.boltClass << c.grade << c.steel;
  }
}

TEST(BoltSteps, StrengthsThatAreNotLookedUpAreScaledAtEveryRun) {
  NormalBoltData group = BoltGroup({.type = kFriction, .Vx = 10, .steel = 4});
  group.m_dF = 215;
  group.m_dFt = 170;
  group.BoltYanSuan();
  EXPECT_DOUBLE_EQ(group.m_dF, 0.215);
  EXPECT_DOUBLE_EQ(group.m_dFt, 0.170);
  group.BoltYanSuan();
  EXPECT_DOUBLE_EQ(group.m_dF, 0.000215);
  EXPECT_DOUBLE_EQ(group.m_dFt, 0.000170);
}

TEST(BoltSteps, SlipFactor) {
  struct {
    int type, surface, steel, surfaceAfter;
    double mu;
  } cases[] = {
      {kFriction, 0, 0, 0, 0.45}, {kFriction, 0, 2, 0, 0.50},   {kFriction, 1, 3, 1, 0.40},
      {kFriction, 2, 1, 2, 0.50}, {kFriction, 3, 0, 3, 0.30},   {kFriction, 3, 2, 3, 0.35},
      {kFriction, 4, 0, 3, 0.30}, {kFriction, 4, 3, 3, 0.40},  // 4 is changed to 3
      {kFriction, 5, 0, 5, 0.99}, {kFriction, -1, 0, -1, 0.99}, {kFriction, 0, 4, 0, 0.99},
      {kOrdinary, 4, 0, 4, 0.99}, {kBearing, 0, 0, 0, 0.99},
  };
  for (const auto& c : cases) {
    NormalBoltData group = BoltGroup({.type = c.type, .steel = c.steel, .surface = c.surface});
    group.m_dMu = 0.99;
    group.CalMoCaU();
    EXPECT_EQ(group.m_dMu, c.mu) << c.surface << ", " << c.steel;
    EXPECT_EQ(group.m_nSurface, c.surfaceAfter);
  }
}

TEST(BoltSteps, Preload) {
  struct {
    int type, grade, d, P;
  } cases[] = {{kFriction, 0, 12, 80},  {kFriction, 0, 19, 80},  {kFriction, 0, 20, 125},
               {kFriction, 0, 21, 125}, {kFriction, 1, 22, 190}, {kFriction, 1, 24, 225},
               {kBearing, 0, 27, 230},  {kBearing, 1, 30, 355},  {kFriction, 1, 36, 355},
               {kFriction, 2, 20, 99},  {kOrdinary, 0, 20, 99}};
  for (const auto& c : cases) {
    NormalBoltData group = BoltGroup({.type = c.type, .d = c.d, .grade = c.grade});
    group.m_nP = 99;
    group.CalMoCaP();
    EXPECT_EQ(group.m_nP, c.P) << c.grade << ", M" << c.d;
  }
}

// The layout draws exactly the bolts that are counted. A staggered group has as many bolts in each
// even column as rows, and one less in each odd column.
TEST(BoltSteps, AsManyPointsAsBolts) {
  for (const int layout : {0, 1}) {
    for (int n = 0; n < 100; ++n) {
      const int cols = n / 10;
      const int rows = n % 10;
      NormalBoltData group =
          BoltGroup({.layout = layout, .type = kFriction, .cols = cols, .rows = rows});
      group.CalBoltNum();
      group.CalBoltPoint();
      int expected = cols * rows;
      if (layout == 1 && cols >= 2 && rows >= 1) expected -= cols / 2;
      EXPECT_EQ(group.m_nBoltNum, expected) << cols << " x " << rows;
      EXPECT_EQ(group.m_PointArr.GetSize(), expected) << cols << " x " << rows;
    }
  }
  NormalBoltData other = BoltGroup({.layout = 2, .type = kFriction});
  other.m_nBoltNum = 5;
  other.CalBoltNum();
  other.CalBoltPoint();
  EXPECT_EQ(other.m_nBoltNum, 5);
  EXPECT_EQ(other.m_PointArr.GetSize(), 0);
}

TEST(BoltSteps, PositionsOfAStaggeredGroup) {
  NormalBoltData group = BoltGroup({.layout = 1,
                                    .type = kFriction,
                                    .cols = 4,
                                    .rows = 4,
                                    .colSpaces = {90, 110, 70},
                                    .rowSpaces = {100, 120, 140}});
  group.CalBoltPoint();
  const double expected[][2] = {{0, 0},    {200, 0},  {0, 100},   {90, 50},   {200, 100},
                                {270, 50}, {0, 220},  {90, 160},  {200, 220}, {270, 160},
                                {0, 360},  {90, 290}, {200, 360}, {270, 290}};
  ASSERT_EQ(group.m_PointArr.GetSize(), 14);
  for (int i = 0; i < 14; ++i) {
    EXPECT_NEAR(group.m_PointArr[i].x, expected[i][0], 1e-12) << i;
    EXPECT_NEAR(group.m_PointArr[i].y, expected[i][1], 1e-12) << i;
    EXPECT_NEAR(group.m_PointArr[i].dx, expected[i][0] - group.m_dXc, 1e-12) << i;
    EXPECT_NEAR(group.m_PointArr[i].ly, expected[i][1] - group.m_dYc, 1e-12) << i;
  }
}

TEST(BoltSteps, UniformSpacingsReplaceTheArrays) {
  NormalBoltData group = BoltGroup(
      {.type = kFriction, .cols = 3, .rows = 2, .colSpaces = {1}, .rowSpaces = {1, 2, 3}});
  group.m_nSpaceMode = 0;
  group.CalBoltPoint();
  ASSERT_EQ(group.m_EcArr.GetSize(), 2);
  ASSERT_EQ(group.m_ErArr.GetSize(), 1);
  EXPECT_EQ(group.m_EcArr[1], 70);
  EXPECT_EQ(group.m_ErArr[0], 80);
}

TEST(BoltSteps, SpacingsShorterThanTheGroupAreRefused) {
  for (const int layout : {0, 1}) {
    NormalBoltData columns = BoltGroup({.layout = layout,
                                        .type = kFriction,
                                        .cols = 4,
                                        .rows = 3,
                                        .colSpaces = {70, 70},
                                        .rowSpaces = {80, 80}});
    EXPECT_THROW(columns.BoltYanSuan(), CInvalidArgException);
    NormalBoltData rows = BoltGroup({.layout = layout,
                                     .type = kFriction,
                                     .cols = 3,
                                     .rows = 4,
                                     .colSpaces = {70, 70},
                                     .rowSpaces = {80, 80}});
    EXPECT_THROW(rows.BoltYanSuan(), CInvalidArgException);
  }
}

// Ordinary and bearing-type groups need a moment above 0 (1e-6 counts as 0); friction-type ones
// take any.
TEST(BoltSteps, MomentOfZeroOrLess) {
  for (const double M : {0.0, -0.0, 1e-6, -1e-6, -500.0}) {
    for (const int type : {kOrdinary, kBearing, 3}) {
      NormalBoltData group = BoltGroup({.type = type, .Vx = 10, .M = M});
      EXPECT_THROW(group.BoltYanSuan(), CInvalidArgException) << type << ", M = " << M;
    }
    NormalBoltData friction = BoltGroup({.type = kFriction, .Vx = 10, .M = M});
    EXPECT_EQ(friction.BoltYanSuan(), 1) << M;
  }
  NormalBoltData group = BoltGroup({.Vx = 10, .M = orv3::kNoMoment});
  EXPECT_EQ(group.BoltYanSuan(), 1);
  EXPECT_EQ(group.m_dNt, 0);
}

TEST(BoltSteps, NoBolts) {
  // The integer quotient of the friction-type section along x has nothing to divide by.
  NormalBoltData friction = BoltGroup({.type = kFriction, .cols = 0, .Vx = 10});
  EXPECT_THROW(friction.BoltYanSuan(), CInvalidArgException);
  // Elsewhere the quotients are infinite or not numbers, and nothing passes.
  for (const int type : {kOrdinary, kFriction, kBearing}) {
    NormalBoltData group = BoltGroup({.type = type, .rows = 0, .Vy = 10});
    EXPECT_EQ(group.BoltYanSuan(), 0) << type;
  }
}

TEST(BoltSteps, NoShear) {
  for (const int type : {kOrdinary, kFriction, kBearing}) {
    NormalBoltData group = BoltGroup({.type = type, .N = -60, .M = orv3::kNoMoment});
    group.m_dSigmaX[0] = group.m_dSigmaY[0] = 1;
    EXPECT_EQ(group.BoltYanSuan(), 1);
    EXPECT_EQ(group.m_dL1, 0);
    EXPECT_EQ(group.m_dBeta, 1);
    EXPECT_EQ(group.m_dSigmaX[0], 0);
    EXPECT_EQ(group.m_dSigmaY[0], 0);
    EXPECT_EQ(group.m_dNtN, -10);
    EXPECT_EQ(group.m_dNt, 0) << "compression loads no bolt in tension";
  }
}

// With the shear along -x the friction-type lever arm is negative, and so is the moment's tension.
TEST(BoltSteps, FrictionLeverCarriesTheSignOfTheShear) {
  for (const double sign : {1.0, -1.0}) {
    NormalBoltData group = BoltGroup({.type = kFriction, .Vx = sign * 60, .M = 3000});
    group.BoltYanSuan();
    // 6 bolts: sum dy^2 = 4 80^2 = 25600; 3000 80/25600 = 9.375
    EXPECT_DOUBLE_EQ(group.m_dLyMax, sign * 80);
    EXPECT_DOUBLE_EQ(group.m_dNtM, sign * 9.375);
    EXPECT_DOUBLE_EQ(group.m_dNt, sign > 0 ? 9.375 : 0);
  }
}

// The governing stress is the greater number, so under a negative shear the smaller stress is
// taken.
TEST(BoltSteps, CandidatesAreComparedWithTheirSigns) {
  NormalBoltData group = BoltGroup({.type = kFriction, .Vx = 600, .grade = 1});
  group.BoltYanSuan();
  EXPECT_DOUBLE_EQ(group.m_dSigmaX[0], 600e3 / ((260 - 3 * 22) * 10));  // net
  group.m_dVx = -600;
  group.BoltYanSuan();
  EXPECT_DOUBLE_EQ(group.m_dSigmaX[0], -600e3 / (260 * 10));  // gross
  EXPECT_DOUBLE_EQ(group.m_dSigmaX[2], -600e3 / ((260 - 3 * 22) * 10));
}

// Rows over bolts is a quotient of integers for Vx: 1 with a single column, otherwise 0.
TEST(BoltSteps, ShareOfTheNetSectionAlongX) {
  for (int cols = 1; cols <= 3; ++cols) {
    NormalBoltData group = BoltGroup({.type = kFriction, .cols = cols, .Vx = 100});
    group.BoltYanSuan();
    EXPECT_DOUBLE_EQ(group.m_dSigmaX[2], (cols == 1 ? 0.5 : 1.0) * 100e3 / ((260 - 66) * 10))
        << cols;
  }
}

// A staggered group of ordinary bolts counts the holes of the straight cut along x by its rows:
// with 5 columns and 2 rows one hole, (2 50 + 280 - 21.5) 10 = 3585.
TEST(BoltSteps, StraightCutAlongXCountsRows) {
  NormalBoltData group = BoltGroup({.layout = 1, .cols = 5, .rows = 2, .Vy = 100});
  group.BoltYanSuan();
  EXPECT_DOUBLE_EQ(group.m_dAreaY[2], 3585);
}

// 5.1.1 with staggered holes: the zigzag cut governs when its legs are little longer than the
// straight way. M20, d0 = 21.5, legs sqrt(100^2 + 40^2) = 107.7033; 3 columns, 3 rows.
TEST(BoltSteps, ZigzagCut) {
  // x: (2 107.7033 + 100 - 5 21.5) 10 = 2079.066 < (100 + 200 - 3 21.5) 10 = 2355
  NormalBoltData alongX =
      BoltGroup({.layout = 1, .cols = 3, .rows = 3, .colSpace = 40, .rowSpace = 100, .Vx = 100});
  alongX.BoltYanSuan();
  EXPECT_NEAR(alongX.m_dAreaX[3], 2079.066, 1e-3);
  EXPECT_NEAR(alongX.m_dSigmaX[0], 48.09852, 1e-5);
  EXPECT_NEAR(alongX.m_dSigmaX[1], 100e3 / 2355, 1e-9);
  // y: (2 107.7033 + 100 - 3 21.5) 10 = 2509.066 < (100 + 200 - 2 21.5) 10 = 2570
  NormalBoltData alongY =
      BoltGroup({.layout = 1, .cols = 3, .rows = 3, .colSpace = 100, .rowSpace = 40, .Vy = 100});
  alongY.BoltYanSuan();
  EXPECT_NEAR(alongY.m_dAreaY[3], 2509.066, 1e-3);
  EXPECT_NEAR(alongY.m_dSigmaY[0], 39.85547, 1e-5);
  EXPECT_NEAR(alongY.m_dSigmaY[1], 100e3 / 2570, 1e-9);
}

// A bolt type outside 0 to 2 is judged as the bearing type, and its old stresses are scaled.
TEST(BoltSteps, UnknownBoltType) {
  NormalBoltData group = BoltGroup({.type = 3, .Vx = 60, .M = 100});
  group.m_dNvb = 50;
  group.m_dNcb = 24;
  group.m_dNtb = 100;
  group.m_dSigmaX[0] = 1e-6;
  group.BoltYanSuan();
  EXPECT_NEAR(group.m_dSigmaX[0], 1, 1e-12) << "scaled twice";
  EXPECT_NEAR(group.m_dNvExcess, 10 - 24 / 1.2, 1e-12);
}

TEST(BoltSteps, ConstructorsStoreNothing) {
  const NormalBoltData groups[] = {
      NormalBoltData(9, 9, 9, 9, 9., 9., 9, 9., 9, 9., 9., 9., 9., 9., 9., 9., 9., 9, 9, 9),
      NormalBoltData(9, 9, 9, 9, 9., 9., 9, 9, 9., 9., 9., 9., 9., 9., 9., 9., 9, 9, 9),
      NormalBoltData(9, 9, 9, 9, 9., 9., 9, 9., 9, 9., 9., 9., 9., 9., 9., 9., 9., 9, 9)};
  for (const NormalBoltData& group : groups) {
    EXPECT_EQ(group.m_nCols, 0);
    EXPECT_EQ(group.m_dN, 0);
    EXPECT_TRUE(group.m_EcArr.IsEmpty() && group.m_ErArr.IsEmpty() && group.m_PointArr.IsEmpty());
  }
}

}  // namespace
