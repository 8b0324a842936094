#include "connections/gb2017/bolt_joint.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "connections/cases/bolt_case.h"
#include "connections/check_math.h"
#include "framework/elementary.h"

namespace orv3::gb2017 {
namespace {

void Shear(const CBoltLoads& loads, const CBoltShape& shape, CBoltFigures& figures) noexcept {
  const int n = shape.Bolts();
  const bool bTorque = !IsZero(loads.m_dT) && !IsZero(shape.SumR2());
  const double turn = bTorque ? std::fabs(loads.m_dT) / shape.SumR2() : 0;
  figures.m_dNvx = std::fabs(loads.m_dVx) / n;
  figures.m_dNvy = std::fabs(loads.m_dVy) / n;
  figures.m_dNTx = turn * shape.m_dYMax;
  figures.m_dNTy = turn * shape.m_dXMax;
  figures.m_dNv = Hypot(figures.m_dNvx + figures.m_dNTx, figures.m_dNvy + figures.m_dNTy);
}

// About the centroid; of uneven rows the arm is that of the row that M pulls.
void TurnAboutCentroid(const CBoltLoads& loads, const CBoltShape& shape,
                       CBoltFigures& figures) noexcept {
  const double perMm = IsZero(loads.m_dM) ? 0 : loads.m_dM / shape.m_dSumY2;
  const double direct = loads.m_dN / shape.Bolts();
  figures.m_nTurn = CTurn::Centroid;
  figures.m_dArm = loads.m_dM < 0 ? shape.m_dYc : shape.m_dHeight - shape.m_dYc;
  figures.m_dSumArm2 = shape.m_dSumY2;
  figures.m_dNtPerMm = perMm;
  figures.m_dNtFirst = direct - perMm * shape.m_dYc;
  figures.m_dNt = direct + std::fabs(perMm) * figures.m_dArm;
}

// About the row that M presses on. N below 0 takes no more than N / n off each bolt.
void TurnAboutRow(const CBoltLoads& loads, const CBoltShape& shape,
                  CBoltFigures& figures) noexcept {
  const int n = shape.Bolts();
  const double centre = loads.m_dM > 0 ? shape.m_dYc : shape.m_dHeight - shape.m_dYc;
  const bool bLifts = loads.m_dN > 0;
  const double sum = shape.m_dSumY2 + n * centre * centre;
  const double perMm = (std::fabs(loads.m_dM) + (bLifts ? loads.m_dN * centre : 0)) / sum;
  const double direct = bLifts ? 0 : loads.m_dN / n;
  figures.m_nTurn = bLifts ? CTurn::FirstRowWithN : CTurn::FirstRow;
  figures.m_dArm = shape.m_dHeight;
  figures.m_dSumArm2 = sum;
  figures.m_dNtPerMm = loads.m_dM > 0 ? perMm : -perMm;
  figures.m_dNtFirst = loads.m_dM > 0 ? direct : direct + perMm * shape.m_dHeight;
  figures.m_dNt = direct + perMm * shape.m_dHeight;
}

void Tension(bool bPreloaded, const CBoltLoads& loads, const CBoltShape& shape,
             CBoltFigures& figures) noexcept {
  const double least =
      IsZero(loads.m_dM)
          ? 0
          : loads.m_dN / shape.Bolts() -
                std::fabs(loads.m_dM) *
                    (loads.m_dM > 0 ? shape.m_dYc : shape.m_dHeight - shape.m_dYc) / shape.m_dSumY2;
  if (bPreloaded || least >= 0)
    TurnAboutCentroid(loads, shape, figures);
  else
    TurnAboutRow(loads, shape, figures);
  if (figures.m_dNt < kCheckTolerance) figures.m_dNt = 0;
}

}  // namespace

CBoltResistance ShankResistance(int planes, double dShear, double d, double de, double sumT,
                                double fv, double fc, double ft) noexcept {
  constexpr double kQuarter = std::numbers::pi / 4 / 1000;
  return {planes * kQuarter * dShear * dShear * fv, d * sumT * fc / 1000, kQuarter * de * de * ft};
}

CBoltResistance FrictionResistance(double k, int surfaces, double mu, double preload) noexcept {
  return {0.9 * k * surfaces * mu * preload, 0, 0.8 * preload};
}

double LongJointFactor(double l1, double d0) noexcept {
  if (AtMost(l1, 15 * d0)) return 1;
  return AtMost(l1, 60 * d0) ? std::min(1.0, 1.1 - l1 / (150 * d0)) : 0.7;
}

double JointLength(const CBoltShape& shape, const CBoltLoads& loads) noexcept {
  // A torque pushes bolts along both axes.
  const bool bTorque = !IsZero(loads.m_dT);
  const double x = bTorque || !IsZero(loads.m_dVx) ? shape.m_dWidth : 0;
  const double y = bTorque || !IsZero(loads.m_dVy) ? shape.m_dHeight : 0;
  return std::max(x, y);
}

CBoltFigures ForcesOnBolts(bool bPreloaded, const CBoltLoads& loads,
                           const CBoltShape& shape) noexcept {
  CBoltFigures figures;
  Shear(loads, shape, figures);
  Tension(bPreloaded, loads, shape, figures);
  return figures;
}

void Interaction(int type, const CBoltResistance& resistance, double beta,
                 CBoltFigures& figures) noexcept {
  const double shear = figures.m_dNv / (beta * resistance.m_dShear);
  const double tension = figures.m_dNt / resistance.m_dTension;
  figures.m_dRatio = type == kFrictionBolt ? shear + tension : Hypot(shear, tension);
  const bool bReduced = type == kBearingBolt && figures.m_dNt > 0;
  figures.m_dBearing = beta * resistance.m_dBearing / (bReduced ? 1.2 : 1);
}

}  // namespace orv3::gb2017
