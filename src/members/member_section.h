// What a member check knows of a solid-web section: figures and plates, whatever table or sizes
// they come from. mm and its powers; x is horizontal, y vertical, all figures about the centroid.
#pragma once

#include <cstdint>

namespace orv3 {

enum class CMemberShape : std::uint8_t {
  I,        // symmetric about y; the flanges may differ
  Channel,  // symmetric about x
  T,        // symmetric about y, flange at the top
  Angle,
  EqualPair,     // two equal angles, symmetric about y
  LongLegPair,   // two unequal angles, long legs together
  ShortLegPair,  // short legs together
  Box,           // walls of two thicknesses, one void
  Tube,          // circular
  SolidRound,
  SolidBar,  // rectangle, hexagon, triangle
};

constexpr bool IsAnglePair(CMemberShape shape) noexcept {
  return shape >= CMemberShape::EqualPair && shape <= CMemberShape::ShortLegPair;
}
constexpr bool IsAngleShape(CMemberShape shape) noexcept {
  return shape == CMemberShape::Angle || IsAnglePair(shape);
}
constexpr bool IsClosed(CMemberShape shape) noexcept {
  return shape == CMemberShape::Box || shape == CMemberShape::Tube;
}
constexpr bool IsSolid(CMemberShape shape) noexcept {
  return shape == CMemberShape::SolidRound || shape == CMemberShape::SolidBar;
}

enum class CMemberAxis : std::uint8_t { X, Y };

struct CMemberFlange {
  double m_dWidth = 0;
  double m_dThick = 0;     // mean where it tapers
  double m_dOutstand = 0;  // clear of the web or of the root radius; of a box 0
};

// The cut that a shear force is held against: tau = V S / (I t).
struct CShearCut {
  double m_dS = 0;  // first moment of the part beyond the cut
  double m_dT = 0;  // thickness of the cut
};

struct CMemberSection {
  CMemberShape m_nShape = CMemberShape::I;
  bool m_bRolled = true;
  double m_dHeight = 0, m_dWidth = 0;
  double m_dA = 0;
  double m_dIx = 0, m_dIy = 0;
  double m_dRx = 0, m_dRy = 0;  // radii of gyration ix, iy
  double m_dRmin = 0;           // of the weak principal axis; angles alone
  double m_dWTop = 0, m_dWBottom = 0;
  double m_dWSide = 0;  // about y, the lesser of left and right
  double m_dIt = 0, m_dIw = 0;
  double m_dXs = 0, m_dYs = 0;  // shear centre from the centroid
  CMemberFlange m_top, m_bottom;
  // Web of I, channel and T, the upright walls of a box: clear height, of one wall the thickness.
  double m_dH0 = 0, m_dTw = 0;
  int m_nWebs = 1;
  double m_dWebTop = 0, m_dWebBottom = 0;  // ends of h0 from the centroid, both positive
  double m_dB0 = 0;                        // box: clear between the walls
  double m_dSTop = 0, m_dSBottom = 0;      // first moments of the parts beyond the web's ends
  CShearCut m_cutY, m_cutX;                // for Vy and for Vx
  double m_dLeg = 0, m_dLegShort = 0, m_dLegThick = 0, m_dLegRoot = 0;  // of an angle
  double m_dDiameter = 0, m_dWall = 0;                                  // of a tube

  // Not the weaker of both: bending about it may end in lateral buckling.
  bool IsStrong(CMemberAxis axis) const noexcept {
    constexpr double kLastDigits = 1e-9;
    const bool bX = axis == CMemberAxis::X;
    return (bX ? m_dIx : m_dIy) >= (bX ? m_dIy : m_dIx) * (1 - kLastDigits);
  }
  bool IsEqualFlanged() const noexcept {
    return m_top.m_dWidth == m_bottom.m_dWidth && m_top.m_dThick == m_bottom.m_dThick;
  }
  bool IsDoublySymmetric() const noexcept {
    return m_nShape == CMemberShape::I ? IsEqualFlanged() : IsClosed(m_nShape);
  }
};

}  // namespace orv3
