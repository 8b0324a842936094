#include "connections/verdict/bolt_verdict.h"

#include <algorithm>
#include <cmath>

#include "connections/cases/bolt_case.h"
#include "connections/check_math.h"
#include "framework/elementary.h"

namespace orv3 {
namespace {

// The torque adds to both shears at the farthest bolt, whatever their signs.
void Shear(const NormalBoltData& record, CBoltFigures& figures) {
  double sumR2 = 0;
  for (const BoltPoint& bolt : record.m_PointArr) sumR2 += bolt.dx * bolt.dx + bolt.dy * bolt.dy;
  const double turn = IsZero(record.m_dT) || IsZero(sumR2) ? 0 : std::fabs(record.m_dT) / sumR2;
  figures.m_dNvx = std::fabs(record.m_dVx) / record.m_nBoltNum;
  figures.m_dNvy = std::fabs(record.m_dVy) / record.m_nBoltNum;
  figures.m_dNTx = turn * std::fabs(record.m_dYMax);
  figures.m_dNTy = turn * std::fabs(record.m_dXMax);
  figures.m_dNv = Hypot(figures.m_dNvx + figures.m_dNTx, figures.m_dNvy + figures.m_dNTy);
}

// The tension when the group turns as said; the moment may act in either sense about the centroid
// of a friction-type group, otherwise it presses on the first row.
void Turn(const NormalBoltData& record, CTurn turn, CBoltFigures& figures) {
  const bool bCentroid = turn == CTurn::Centroid;
  const bool bWithN = turn == CTurn::FirstRowWithN;
  double sum = 0;
  double arm = 0;
  for (const BoltPoint& bolt : record.m_PointArr) {
    const double l = bCentroid ? bolt.dy : bolt.y;
    sum += l * l;
    arm = std::max(arm, record.m_nBoltType == kFrictionBolt ? std::fabs(l) : l);
  }
  const double moment = std::fabs(record.m_dM) + (bWithN ? record.m_dN * record.m_dYc : 0);
  const double perMm = IsZero(record.m_dM) || IsZero(sum) ? 0 : moment / sum;
  const double direct = bWithN ? 0 : record.m_dN / record.m_nBoltNum;
  const double tension = std::max(0.0, direct + perMm * arm);
  if (tension <= figures.m_dNt && figures.m_dSumArm2 > 0) return;
  figures.m_nTurn = turn;
  figures.m_dArm = arm;
  figures.m_dSumArm2 = sum;
  figures.m_dNtPerMm = record.m_dM < 0 ? -perMm : perMm;
  figures.m_dNtFirst = direct - (bCentroid ? figures.m_dNtPerMm * record.m_dYc : 0);
  figures.m_dNt = tension < kCheckTolerance ? 0 : tension;
}

// Preloaded bolts keep the plates together: the group turns about its centroid. So does a group of
// ordinary bolts as long as N leaves every bolt in tension; otherwise it turns about the first
// row, and N lifts that row as well. Never less than what the record has.
void Tension(const NormalBoltData& record, CBoltFigures& figures) {
  if (record.m_nBoltType == kFrictionBolt) return Turn(record, CTurn::Centroid, figures);
  Turn(record, CTurn::FirstRow, figures);
  if (IsZero(record.m_dM)) return;
  if (record.m_nBoltType == kBearingBolt) return Turn(record, CTurn::Centroid, figures);
  double sum = 0;
  for (const BoltPoint& bolt : record.m_PointArr) sum += bolt.dy * bolt.dy;
  const double least = record.m_dN / record.m_nBoltNum - record.m_dM * record.m_dYc / sum;
  Turn(record, least >= 0 ? CTurn::Centroid : CTurn::FirstRowWithN, figures);
}

// 7.2.1 to 7.2.4. Bearing-type bolts hold Nv against Ncb / 1.2 only together with tension.
void Interaction(const NormalBoltData& record, CBoltFigures& figures) {
  const double shear = figures.m_dNv / (record.m_dBeta * figures.m_dShear);
  const double tension = figures.m_dNt / record.m_dNtb;
  if (record.m_nBoltType == kFrictionBolt) {
    figures.m_dRatio = shear + tension;
    return;
  }
  figures.m_dRatio = Hypot(shear, tension);
  const bool bReduced = record.m_nBoltType == kBearingBolt && figures.m_dNt > 0;
  figures.m_dBearing = record.m_dBeta * record.m_dNcb / (bReduced ? 1.2 : 1);
}

CPlateHoles HolesOf(const NormalBoltData& record) {
  const auto spacings = [](const CArray<double, double>& each) {
    return std::span(each.GetData(), static_cast<std::size_t>(each.GetSize()));
  };
  return {.m_bStaggered = record.m_nLayout == 1,
          .m_nBolts = record.m_nBoltNum,
          .m_arrCol = spacings(record.m_EcArr),
          .m_arrRow = spacings(record.m_ErArr),
          .m_dEx = record.m_dEx,
          .m_dEy = record.m_dEy,
          .m_dThick = record.m_dThick,
          .m_bFriction = record.m_nBoltType == kFrictionBolt};
}

}  // namespace

CBoltFigures JudgedFigures(const NormalBoltData& record, bool bThreads) {
  CBoltFigures figures;
  figures.m_bThreads = bThreads;
  const double share = bThreads ? record.m_dDe / record.m_nD : 1;
  figures.m_dShear = record.m_dNvb * share * share;
  Shear(record, figures);
  Tension(record, figures);
  Interaction(record, figures);
  const CPlateHoles holes = HolesOf(record);
  figures.m_x = WorstSectionX(holes, record.m_dVx, record.m_dD0);
  figures.m_y = WorstSectionY(holes, record.m_dVy, record.m_dD0);
  return figures;
}

}  // namespace orv3
