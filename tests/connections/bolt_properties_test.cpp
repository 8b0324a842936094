// What must hold for any bolt group: mirrored, turned and doubled loads.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "connections/bolt_input.h"

namespace {

using orv3::BoltGroup;
using orv3::CBoltInput;

constexpr int kGroups = 200;

// Groups of every type and layout with any positive loads; the same ones at every run.
class CRandomGroups {
 public:
  CBoltInput Next() {
    CBoltInput in;
    in.layout = Whole(0, 1);
    in.type = Whole(0, 2);
    in.cols = Whole(2, 6);
    in.rows = Whole(2, 6);
    in.colSpace = Real(60, 200);
    in.rowSpace = Real(60, 200);
    in.d = 16 + 4 * Whole(0, 2);
    in.sumT = in.t = Real(6, 30);
    in.nv = in.nf = Whole(1, 2);
    in.N = Real(0, 200);
    in.Vx = Real(1, 500);
    in.Vy = Real(1, 500);
    in.M = Real(1, 9000);
    in.T = Real(0, 9000);
    in.steel = Whole(0, 3);
    in.surface = Whole(0, 3);
    in.grade = Whole(0, 1);
    return in;
  }

 private:
  int Whole(int low, int high) {
    return low + static_cast<int>(m_engine() % static_cast<unsigned>(high - low + 1));
  }
  double Real(double low, double high) {
    return low + (high - low) * (static_cast<double>(m_engine()) / 4294967296.0);
  }

  std::mt19937 m_engine{20030501};
};

NormalBoltData Checked(const CBoltInput& in) {
  NormalBoltData group = BoltGroup(in);
  group.BoltYanSuan();
  return group;
}

void ExpectSame(double a, double b, const char* what, int n) {
  EXPECT_NEAR(a, b, 1e-9 * std::fabs(b) + 1e-9) << what << ", group " << n;
}

// Both shears reversed: the forces turn round, their magnitudes stay. Without a moment, since the
// friction type's lever arm follows the sign of Vx.
TEST(BoltProperties, MirroredLoads) {
  CRandomGroups random;
  for (int n = 0; n < kGroups; ++n) {
    CBoltInput in = random.Next();
    in.M = orv3::kNoMoment;
    const NormalBoltData group = Checked(in);
    for (const auto& [x, y] : {std::pair(-1, 1), std::pair(1, -1), std::pair(-1, -1)}) {
      CBoltInput mirrored = in;
      mirrored.Vx *= x;
      mirrored.Vy *= y;
      const NormalBoltData other = Checked(mirrored);
      ExpectSame(other.m_dNv, group.m_dNv, "Nv", n);
      ExpectSame(other.m_dRatio, group.m_dRatio, "ratio", n);
      ExpectSame(other.m_dNTx, x * group.m_dNTx, "NTx", n);
      ExpectSame(other.m_dNTy, y * group.m_dNTy, "NTy", n);
      ExpectSame(other.m_dL1, group.m_dL1, "l1", n);
      for (int i = 1; i < 3; ++i) {
        ExpectSame(other.m_dSigmaX[i], x * group.m_dSigmaX[i], "sigma x", n);
        ExpectSame(other.m_dSigmaY[i], y * group.m_dSigmaY[i], "sigma y", n);
      }
    }
  }
}

// A grid turned by 90 degrees with its shears: columns become rows and Vx becomes Vy.
TEST(BoltProperties, TurnedByNinetyDegrees) {
  CRandomGroups random;
  for (int n = 0; n < kGroups; ++n) {
    CBoltInput in = random.Next();
    in.layout = 0;
    in.M = orv3::kNoMoment;
    CBoltInput turned = in;
    std::swap(turned.cols, turned.rows);
    std::swap(turned.colSpace, turned.rowSpace);
    std::swap(turned.Vx, turned.Vy);
    std::swap(turned.ex, turned.ey);
    const NormalBoltData group = Checked(in);
    const NormalBoltData other = Checked(turned);
    ExpectSame(other.m_dRatio, group.m_dRatio, "ratio", n);
    ExpectSame(other.m_dNv, group.m_dNv, "Nv", n);
    ExpectSame(other.m_dBeta, group.m_dBeta, "beta", n);
    if (in.type == 1) continue;  // formula (5.1.1-2) is applied along y only
    ExpectSame(other.m_dSigmaX[0], group.m_dSigmaY[0], "sigma", n);
    ExpectSame(other.m_dSigmaY[0], group.m_dSigmaX[0], "sigma", n);
  }
}

TEST(BoltProperties, DoubledLoads) {
  CRandomGroups random;
  for (int n = 0; n < kGroups; ++n) {
    const CBoltInput in = random.Next();
    CBoltInput doubled = in;
    for (double CBoltInput::*load :
         {&CBoltInput::N, &CBoltInput::Vx, &CBoltInput::Vy, &CBoltInput::M, &CBoltInput::T}) {
      doubled.*load *= 2;
    }
    const NormalBoltData group = Checked(in);
    const NormalBoltData other = Checked(doubled);
    for (double NormalBoltData::*force :
         {&NormalBoltData::m_dNv, &NormalBoltData::m_dNt, &NormalBoltData::m_dNT,
          &NormalBoltData::m_dNtM, &NormalBoltData::m_dNtN, &NormalBoltData::m_dRatio}) {
      ExpectSame(other.*force, 2 * group.*force, "force", n);
    }
    ExpectSame(other.m_dSigmaX[0], 2 * group.m_dSigmaX[0], "sigma x", n);
    ExpectSame(other.m_dSigmaY[0], 2 * group.m_dSigmaY[0], "sigma y", n);
    EXPECT_EQ(other.m_dNvb, group.m_dNvb);
    EXPECT_EQ(other.m_dBeta, group.m_dBeta);
  }
}

// Equilibrium, bolt by bolt: the elastic forces of a group add up to its loads, and none exceeds
// what the check takes for the most stressed bolt.
TEST(BoltProperties, MostStressedBoltCoversEveryBolt) {
  CRandomGroups random;
  for (int n = 0; n < kGroups; ++n) {
    CBoltInput in = random.Next();
    const NormalBoltData group = Checked(in);
    double sumX = 0, sumY = 0, torque = 0, sumR2 = 0;
    for (const BoltPoint& p : group.m_PointArr) sumR2 += p.dx * p.dx + p.dy * p.dy;
    for (const BoltPoint& p : group.m_PointArr) {
      const double x = in.Vx / group.m_nBoltNum - in.T * p.dy / sumR2;
      const double y = in.Vy / group.m_nBoltNum + in.T * p.dx / sumR2;
      sumX += x;
      sumY += y;
      torque += p.dx * y - p.dy * x;
      EXPECT_LE(std::hypot(x, y), group.m_dNv + 1e-9) << n;
      EXPECT_LE(in.N / group.m_nBoltNum + in.M * p.ly / group.m_dSumLy2, group.m_dNt + 1e-9) << n;
    }
    ExpectSame(sumX, in.Vx, "sum of x forces", n);
    ExpectSame(sumY, in.Vy, "sum of y forces", n);
    ExpectSame(torque, in.T, "torque", n);
  }
}

}  // namespace
