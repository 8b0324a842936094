// What must hold for any bolt group: mirrored and turned loads, and equilibrium.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "connections/bolt_input.h"

namespace {

using orv3::CBoltInput;
using orv3::Checked;

// Groups of every type and layout with any positive loads; the same ones at every run.
class CRandomGroups {
 public:
  CBoltInput Next() {
    return {.grid = {.layout = Whole(0, 1),
                     .cols = Whole(2, 6),
                     .rows = Whole(2, 6),
                     .colSpace = Real(60, 200),
                     .rowSpace = Real(60, 200)},
            .bolt = {.type = Whole(0, 2),
                     .d = 16 + 4 * Whole(0, 2),
                     .sumT = Real(6, 30),
                     .nv = Whole(1, 2),
                     .nf = Whole(1, 2),
                     .surface = Whole(0, 3),
                     .grade = Whole(0, 1)},
            .load = {.N = Real(0, 200),
                     .Vx = Real(1, 500),
                     .Vy = Real(1, 500),
                     .M = Real(1, 9000),
                     .T = Real(0, 9000)},
            .plate = {.t = Real(6, 30), .steel = Whole(0, 3)}};
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

template <class TEST>
void ForEveryGroup(TEST test) {
  CRandomGroups random;
  for (int n = 0; n < 200; ++n) {
    SCOPED_TRACE(testing::Message() << "group " << n);
    test(random.Next());
  }
}

void ExpectSame(double a, double b, const char* what) {
  EXPECT_NEAR(a, b, 1e-9 * std::fabs(b) + 1e-9) << what;
}

// Both shears reversed: the forces turn round, their magnitudes stay. Without a moment, since the
// friction type's lever arm follows the sign of Vx.
TEST(BoltProperties, MirroredLoads) {
  ForEveryGroup([](CBoltInput in) {
    in.load.M = orv3::kNoMoment;
    const NormalBoltData group = Checked(in);
    for (const auto& [x, y] : {std::pair(-1, 1), std::pair(1, -1), std::pair(-1, -1)}) {
      CBoltInput mirrored = in;
      mirrored.load.Vx *= x;
      mirrored.load.Vy *= y;
      const NormalBoltData other = Checked(mirrored);
      ExpectSame(other.m_dNv, group.m_dNv, "Nv");
      ExpectSame(other.m_dRatio, group.m_dRatio, "ratio");
      ExpectSame(other.m_dNTx, x * group.m_dNTx, "NTx");
      ExpectSame(other.m_dNTy, y * group.m_dNTy, "NTy");
      ExpectSame(other.m_dL1, group.m_dL1, "l1");
      for (int i = 1; i < 3; ++i) {
        ExpectSame(other.m_dSigmaX[i], x * group.m_dSigmaX[i], "sigma x");
        ExpectSame(other.m_dSigmaY[i], y * group.m_dSigmaY[i], "sigma y");
      }
    }
  });
}

// A grid turned by 90 degrees with its shears: columns become rows and Vx becomes Vy.
TEST(BoltProperties, TurnedByNinetyDegrees) {
  ForEveryGroup([](CBoltInput in) {
    in.grid.layout = 0;
    in.load.M = orv3::kNoMoment;
    CBoltInput turned = in;
    std::swap(turned.grid.cols, turned.grid.rows);
    std::swap(turned.grid.colSpace, turned.grid.rowSpace);
    std::swap(turned.load.Vx, turned.load.Vy);
    const NormalBoltData group = Checked(in);
    const NormalBoltData other = Checked(turned);
    ExpectSame(other.m_dRatio, group.m_dRatio, "ratio");
    ExpectSame(other.m_dNv, group.m_dNv, "Nv");
    ExpectSame(other.m_dBeta, group.m_dBeta, "beta");
    if (in.bolt.type == 1) return;  // formula (5.1.1-2) is applied along y only
    ExpectSame(other.m_dSigmaX[0], group.m_dSigmaY[0], "sigma");
    ExpectSame(other.m_dSigmaY[0], group.m_dSigmaX[0], "sigma");
  });
}

// Equilibrium, bolt by bolt: the elastic forces of a group add up to its loads, and none exceeds
// what the check takes for the most stressed bolt.
TEST(BoltProperties, MostStressedBoltCoversEveryBolt) {
  ForEveryGroup([](const CBoltInput& in) {
    const NormalBoltData group = Checked(in);
    const auto& load = in.load;
    double sumX = 0, sumY = 0, torque = 0, sumR2 = 0;
    for (const BoltPoint& p : group.m_PointArr) sumR2 += p.dx * p.dx + p.dy * p.dy;
    for (const BoltPoint& p : group.m_PointArr) {
      const double x = load.Vx / group.m_nBoltNum - load.T * p.dy / sumR2;
      const double y = load.Vy / group.m_nBoltNum + load.T * p.dx / sumR2;
      sumX += x;
      sumY += y;
      torque += p.dx * y - p.dy * x;
      EXPECT_LE(std::hypot(x, y), group.m_dNv + 1e-9);
      EXPECT_LE(load.N / group.m_nBoltNum + load.M * p.ly / group.m_dSumLy2, group.m_dNt + 1e-9);
    }
    ExpectSame(sumX, load.Vx, "sum of x forces");
    ExpectSame(sumY, load.Vy, "sum of y forces");
    ExpectSame(torque, load.T, "torque");
    ExpectSame(std::hypot(group.m_dNTx, group.m_dNTy), group.m_dNT, "the torque's force");
  });
}

}  // namespace
