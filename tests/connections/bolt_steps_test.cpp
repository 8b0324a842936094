// Single steps of the bolt group check, the behaviours that hosts know, and refusals.
#include <gtest/gtest.h>

#include "connections/bolt_input.h"

namespace {

using orv3::BoltGroup;
using orv3::CBoltInput;
using orv3::Checked;

constexpr int kOrdinary = 0;
constexpr int kFriction = 1;
constexpr int kBearing = 2;

// A group after one step of its check.
NormalBoltData After(void (NormalBoltData::*step)(), NormalBoltData group) {
  (group.*step)();
  return group;
}

TEST(BoltSteps, HoleDiameter) {
  const struct {
    int type, d;
    double d0;
  } cases[] = {{kOrdinary, 16, 17}, {kOrdinary, 18, 19.5}, {kFriction, 30, 32}, {7, 16, 17.5}};
  for (const auto& c : cases) {
    const NormalBoltData group =
        After(&NormalBoltData::CalBoltKongD, BoltGroup({.bolt = {.type = c.type, .d = c.d}}));
    EXPECT_EQ(group.m_dD0, c.d0) << c.type << ", M" << c.d;
  }
}

TEST(BoltSteps, EffectiveDiameterKeptWhenTheTableLacksIt) {
  NormalBoltData group = BoltGroup({});
  for (const auto& [d, de] : {std::pair(27, 24.19), std::pair(26, 24.19), std::pair(100, 94.37)}) {
    group.m_nD = d;
    group.CalBoltYouXiaoD();
    EXPECT_EQ(group.m_dDe, de) << d;
  }
}

constexpr double kKept = 0.777;  // stands for 777 that was there before

// A limit within the checks' tolerance, a plate beyond the table, a grade that it lacks.
TEST(BoltSteps, SteelStrength) {
  const struct {
    int steel;
    double t, f;
  } cases[] = {{0, 16.0000005, 0.215}, {0, 16.001, 0.205}, {0, 200, 0.19}, {4, 16, kKept}};
  for (const auto& c : cases) {
    NormalBoltData group = BoltGroup({.plate = {.t = c.t, .steel = c.steel}});
    group.m_dF = 777;
    group.CalGangCaiQD();
    EXPECT_DOUBLE_EQ(group.m_dF, c.f) << c.steel << ", t = " << c.t;
  }
}

TEST(BoltSteps, BoltStrength) {
  const struct {
    int type, boltClass, grade, steel;
    double ft, fv, fc;
  } cases[] = {
      {kOrdinary, 1, 2, 1, 0.210, 0.190, 0.510},
      // what is not looked up is scaled all the same, at every run
      {kOrdinary, 0, 2, 0, kKept, kKept, 0.305},
      {kOrdinary, 1, 0, 0, kKept, kKept, 0.405},
      {kOrdinary, 3, 2, 0, 0.210, 0.190, kKept},
      {kOrdinary, 0, 0, 4, 0.170, 0.140, kKept},
      {kBearing, 0, 2, -1, kKept, kKept, kKept},
      {kFriction, 0, 0, 0, kKept, kKept, kKept},
  };
  for (const auto& c : cases) {
    NormalBoltData group =
        BoltGroup({.bolt = {.type = c.type, .grade = c.grade, .boltClass = c.boltClass},
                   .plate = {.steel = c.steel}});
    group.m_dFt = group.m_dFv = group.m_dFc = 777;
    group.CalCaiLiaoQD();
    EXPECT_DOUBLE_EQ(group.m_dFt, c.ft) << c.type << c.boltClass << c.grade << c.steel;
    EXPECT_DOUBLE_EQ(group.m_dFv, c.fv) << c.type << c.boltClass << c.grade << c.steel;
    EXPECT_DOUBLE_EQ(group.m_dFc, c.fc) << c.type << c.boltClass << c.grade << c.steel;
  }
}

TEST(BoltSteps, SlipFactor) {
  const struct {
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
    NormalBoltData group =
        BoltGroup({.bolt = {.type = c.type, .surface = c.surface}, .plate = {.steel = c.steel}});
    group.m_dMu = 0.99;
    group.CalMoCaU();
    EXPECT_EQ(group.m_dMu, c.mu) << c.surface << ", " << c.steel;
    EXPECT_EQ(group.m_nSurface, c.surfaceAfter);
  }
}

TEST(BoltSteps, Preload) {
  const struct {
    int type, grade, d, P;
  } cases[] = {{kFriction, 0, 12, 80},  {kFriction, 0, 19, 80},  {kFriction, 0, 20, 125},
               {kFriction, 0, 21, 125}, {kFriction, 1, 22, 190}, {kFriction, 1, 24, 225},
               {kBearing, 0, 27, 230},  {kBearing, 1, 30, 355},  {kFriction, 1, 36, 355},
               {kFriction, 2, 20, 99},  {kOrdinary, 0, 20, 99}};
  for (const auto& c : cases) {
    NormalBoltData group = BoltGroup({.bolt = {.type = c.type, .d = c.d, .grade = c.grade}});
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
      NormalBoltData group = BoltGroup(
          {.grid = {.layout = layout, .cols = cols, .rows = rows}, .bolt = {.type = kFriction}});
      group.CalBoltNum();
      group.CalBoltPoint();
      int expected = cols * rows;
      if (layout == 1 && cols >= 2 && rows >= 1) expected -= cols / 2;
      EXPECT_EQ(group.m_nBoltNum, expected) << cols << " x " << rows;
      EXPECT_EQ(group.m_PointArr.GetSize(), expected) << cols << " x " << rows;
    }
  }
  NormalBoltData other = BoltGroup({.grid = {.layout = 2}, .bolt = {.type = kFriction}});
  other.m_nBoltNum = 5;
  other.CalBoltNum();
  other.CalBoltPoint();
  EXPECT_EQ(other.m_nBoltNum, 5);
  EXPECT_EQ(other.m_PointArr.GetSize(), 0);
}

TEST(BoltSteps, PositionsOfAStaggeredGroup) {
  const NormalBoltData group =
      After(&NormalBoltData::CalBoltPoint,
            BoltGroup({.grid = {1, 4, 4, 0, 0, {90, 110, 70}, {100, 120, 140}},
                       .bolt = {.type = kFriction}}));
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
  NormalBoltData group =
      BoltGroup({.grid = {.cols = 3, .rows = 2, .colSpaces = {1}, .rowSpaces = {1, 2, 3}},
                 .bolt = {.type = kFriction}});
  group.m_nSpaceMode = 0;
  group.CalBoltPoint();
  EXPECT_EQ(std::vector(group.m_EcArr.begin(), group.m_EcArr.end()), (std::vector{70.0, 70.0}));
  EXPECT_EQ(std::vector(group.m_ErArr.begin(), group.m_ErArr.end()), (std::vector{80.0}));
}

TEST(BoltSteps, SpacingsShorterThanTheGroupAreRefused) {
  for (const int layout : {0, 1}) {
    for (const auto& [cols, rows] : {std::pair(4, 3), std::pair(3, 4)}) {
      const orv3::CGridInput grid = {layout, cols, rows, 0, 0, {70, 70}, {80, 80}};
      EXPECT_THROW(Checked({.grid = grid, .bolt = {.type = kFriction}}), CInvalidArgException);
    }
  }
}

// Ordinary and bearing-type groups need a moment above 0 (1e-6 counts as 0); friction-type ones
// take any.
TEST(BoltSteps, MomentOfZeroOrLess) {
  for (const double M : {0.0, -0.0, 1e-6, -1e-6, -500.0}) {
    for (const int type : {kOrdinary, kFriction, kBearing, 3}) {
      NormalBoltData group = BoltGroup({.bolt = {.type = type}, .load = {.Vx = 10, .M = M}});
      if (type == kFriction) {
        EXPECT_EQ(group.BoltYanSuan(), 1) << M;
      } else {
        EXPECT_THROW(group.BoltYanSuan(), CInvalidArgException) << type << ", M = " << M;
      }
    }
  }
  EXPECT_EQ(Checked({.load = {.Vx = 10, .M = orv3::kNoMoment}}).m_dNt, 0);
}

TEST(BoltSteps, NoBolts) {
  // The integer quotient of the friction-type section along x has nothing to divide by.
  EXPECT_THROW(Checked({.grid = {.cols = 0}, .bolt = {.type = kFriction}, .load = {.Vx = 10}}),
               CInvalidArgException);
  // Elsewhere the quotients are infinite or not numbers, and nothing passes.
  for (const int type : {kOrdinary, kFriction, kBearing}) {
    NormalBoltData group =
        BoltGroup({.grid = {.rows = 0}, .bolt = {.type = type}, .load = {.Vy = 10}});
    EXPECT_EQ(group.BoltYanSuan(), 0) << type;
  }
}

TEST(BoltSteps, NoShear) {
  for (const int type : {kOrdinary, kFriction, kBearing}) {
    NormalBoltData group =
        BoltGroup({.bolt = {.type = type}, .load = {.N = -60, .M = orv3::kNoMoment}});
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
// 6 bolts: sum dy^2 = 4 80^2 = 25600; 3000 80/25600 = 9.375
TEST(BoltSteps, FrictionLeverCarriesTheSignOfTheShear) {
  for (const double sign : {1.0, -1.0}) {
    const NormalBoltData group =
        Checked({.bolt = {.type = kFriction}, .load = {.Vx = sign * 60, .M = 3000}});
    EXPECT_DOUBLE_EQ(group.m_dLyMax, sign * 80);
    EXPECT_DOUBLE_EQ(group.m_dNtM, sign * 9.375);
    EXPECT_DOUBLE_EQ(group.m_dNt, sign > 0 ? 9.375 : 0);
  }
}

// The governing stress is the greater number, so under a negative shear that of the gross section.
TEST(BoltSteps, CandidatesAreComparedWithTheirSigns) {
  CBoltInput in = {.bolt = {.type = kFriction, .grade = 1}, .load = {.Vx = 600}};
  const double gross = 260 * 10, net = (260 - 3 * 22) * 10;
  EXPECT_DOUBLE_EQ(Checked(in).m_dSigmaX[0], 600e3 / net);
  in.load.Vx = -600;
  EXPECT_DOUBLE_EQ(Checked(in).m_dSigmaX[0], -600e3 / gross);
  EXPECT_DOUBLE_EQ(Checked(in).m_dSigmaX[2], -600e3 / net);
}

// Rows over bolts is a quotient of integers for Vx: 1 with a single column, otherwise 0.
TEST(BoltSteps, ShareOfTheNetSectionAlongX) {
  for (const auto& [cols, share] : {std::pair(1, 0.5), std::pair(2, 1.0), std::pair(3, 1.0)}) {
    const NormalBoltData group =
        Checked({.grid = {.cols = cols}, .bolt = {.type = kFriction}, .load = {.Vx = 100}});
    EXPECT_DOUBLE_EQ(group.m_dSigmaX[2], share * 100e3 / ((260 - 66) * 10)) << cols;
  }
}

// A staggered group of ordinary bolts counts the holes of the straight cut along x by its rows:
// with 5 columns and 2 rows one hole, (2 50 + 280 - 21.5) 10 = 3585.
TEST(BoltSteps, StraightCutAlongXCountsRows) {
  EXPECT_DOUBLE_EQ(
      Checked({.grid = {.layout = 1, .cols = 5, .rows = 2}, .load = {.Vy = 100}}).m_dAreaY[2],
      3585);
}

// 5.1.1 with staggered holes: the zigzag cut governs when its legs are little longer than the
// straight way. M20, d0 = 21.5, legs sqrt(100^2 + 40^2) = 107.7033; 3 columns, 3 rows.
TEST(BoltSteps, ZigzagCut) {
  // x: (2 107.7033 + 100 - 5 21.5) 10 = 2079.066 < (100 + 200 - 3 21.5) 10 = 2355
  const NormalBoltData alongX = Checked(
      {.grid = {.layout = 1, .cols = 3, .colSpace = 40, .rowSpace = 100}, .load = {.Vx = 100}});
  EXPECT_NEAR(alongX.m_dAreaX[3], 2079.066, 1e-3);
  EXPECT_NEAR(alongX.m_dSigmaX[0], 48.09852, 1e-5);
  EXPECT_NEAR(alongX.m_dSigmaX[1], 100e3 / 2355, 1e-9);
  // y: (2 107.7033 + 100 - 3 21.5) 10 = 2509.066 < (100 + 200 - 2 21.5) 10 = 2570
  const NormalBoltData alongY = Checked(
      {.grid = {.layout = 1, .cols = 3, .colSpace = 100, .rowSpace = 40}, .load = {.Vy = 100}});
  EXPECT_NEAR(alongY.m_dAreaY[3], 2509.066, 1e-3);
  EXPECT_NEAR(alongY.m_dSigmaY[0], 39.85547, 1e-5);
  EXPECT_NEAR(alongY.m_dSigmaY[1], 100e3 / 2570, 1e-9);
}

// A bolt type outside 0 to 2 is judged as the bearing type, and its old stresses are scaled.
TEST(BoltSteps, UnknownBoltType) {
  NormalBoltData group = BoltGroup({.bolt = {.type = 3}, .load = {.Vx = 60, .M = 100}});
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
