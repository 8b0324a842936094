// What every section style shares: the properties that follow from centroid, area and centroidal
// inertia, and rectangles about an axis.
#include <cmath>

#include "sections/base_point.h"
#include "sections/rect_moments.h"
#include "sections/steel_jm_data.h"

namespace {

// A modulus whose fibre lies on the axis.
constexpr double kNoFibre = 1e100;

double Modulus(double inertia, double fibre) {
  return fibre == 0 ? kNoFibre : inertia / std::fabs(fibre);
}

}  // namespace

double CSteelJMData::CalRectMomS(double b, double h, double y0, double yc, int upper) {
  return orv3::RectFirstMoment(b, h, y0, yc, upper);
}

double CSteelJMData::CalRectGxj(double b, double h, double d) { return orv3::RectInertia(b, h, d); }

void CSteelJMData::CalRectBarycenterAdd(double A1, double x1, double y1, double A2, double x2,
                                        double y2, double& x, double& y) {
  orv3::AddCentroids(A1, x1, y1, A2, x2, y2, x, y);
}

void CSteelJMData::CalSectMomByI0(CSteelJMData& jm, double W, double H) {
  const double dx = jm.m_dXo - jm.m_dX;
  const double dy = jm.m_dYo - jm.m_dY;
  jm.m_dIx = jm.m_dA * dy * dy + jm.m_dIxo;
  jm.m_dIy = jm.m_dA * dx * dx + jm.m_dIyo;
  const bool empty = jm.m_dA == 0;
  jm.m_dixo = empty ? 0 : std::sqrt(jm.m_dIxo / jm.m_dA);
  jm.m_diyo = empty ? 0 : std::sqrt(jm.m_dIyo / jm.m_dA);
  jm.m_dix = empty ? std::fabs(dy) : std::sqrt(jm.m_dIx / jm.m_dA);
  jm.m_diy = empty ? std::fabs(dx) : std::sqrt(jm.m_dIy / jm.m_dA);

  jm.m_dWxo1 = Modulus(jm.m_dIxo, H - jm.m_dYo);
  jm.m_dWxo2 = Modulus(jm.m_dIxo, jm.m_dYo);
  jm.m_dWyoL = Modulus(jm.m_dIyo, jm.m_dXo);
  jm.m_dWyoR = Modulus(jm.m_dIyo, W - jm.m_dXo);
  const double x = orv3::OntoEdge(jm.m_dX, W), y = orv3::OntoEdge(jm.m_dY, H);
  jm.m_dWx1 = Modulus(jm.m_dIx, H - y);
  jm.m_dWx2 = Modulus(jm.m_dIx, y);
  jm.m_dWyL = Modulus(jm.m_dIy, x);
  jm.m_dWyR = Modulus(jm.m_dIy, W - x);
}
