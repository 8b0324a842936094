// The sketches by family: each function draws one resource number.
#pragma once

#include "sections/sketch/pen.h"

namespace orv3::sketch {

// Rolled and cold-formed sections.
void RolledI(CSketchPen& pen);
void WideH(CSketchPen& pen);
void NarrowH(CSketchPen& pen);
void WeldedH(CSketchPen& pen);
void RolledChannel(CSketchPen& pen);
void RolledT(CSketchPen& pen);
void EqualAngle(CSketchPen& pen);
void UnequalAngle(CSketchPen& pen);
void ColdAngle(CSketchPen& pen);
void ColdLippedAngle(CSketchPen& pen);
void ColdChannel(CSketchPen& pen);
void ColdLippedChannel(CSketchPen& pen);
void ColdLippedZ(CSketchPen& pen);
void ColdSlantLippedZ(CSketchPen& pen);
void SquareTube(CSketchPen& pen);
void RoundTube(CSketchPen& pen);

// Pairs of rolled sections, lattice columns and the sketch of what has none of its own.
void EqualAnglePair(CSketchPen& pen);
void LongLegPair(CSketchPen& pen);
void ShortLegPair(CSketchPen& pen);
void CrossAnglePair(CSketchPen& pen);
void ChannelsBackToBack(CSketchPen& pen);
void ChannelsToeToToe(CSketchPen& pen);
void TwoLimbs(CSketchPen& pen);
void FourLimbs(CSketchPen& pen);
void GeneralSection(CSketchPen& pen);

// Sections from plate sizes, lettered with the signs of their columns.
void PlateH(CSketchPen& pen);
void GeneralH(CSketchPen& pen);
void Box(CSketchPen& pen);
void GeneralBox(CSketchPen& pen);
void Cross(CSketchPen& pen);
void FlangedCross(CSketchPen& pen);
void PlateT(CSketchPen& pen);
void PlateChannel(CSketchPen& pen);
void PlateZ(CSketchPen& pen);
void PlateL(CSketchPen& pen);
void Circle(CSketchPen& pen);
void Tube(CSketchPen& pen);
void Rectangle(CSketchPen& pen);
void Hexagon(CSketchPen& pen);
void Triangle(CSketchPen& pen);

}  // namespace orv3::sketch
