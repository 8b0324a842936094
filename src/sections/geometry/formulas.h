// The formulas of the family descriptions: what a row's cells do not hold.
#pragma once

#include "sections/geometry/families.h"

namespace orv3 {

// --- extent_formulas.cpp: rectangle and centroid -------------------------------------------------
CFormulaFunction HalfWidth;
CFormulaFunction HalfHeight;
CFormulaFunction BelowTop;        // the height less the cell
CFormulaFunction Twice;           // of the cell
CFormulaFunction TextNumber;      // the cell as a number, KVBT_STRING too
CFormulaFunction ZWidth;          // two flanges that share the web
CFormulaFunction SlantLipZWidth;  // with lips that reach out at 45 degrees
CFormulaFunction HexagonWidth;    // two corners on the vertical axis
CFormulaFunction TWidth;          // user-defined: web and overhangs
CFormulaFunction GeneralHWidth;
CFormulaFunction LWidth;
CFormulaFunction ZPlateWidth;
CFormulaFunction ChannelPlateWidth;
CFormulaFunction CrossWidth;

// --- modulus_formulas.cpp: what inertia and rectangle give ------------------------------------
CFormulaFunction ModulusAtDepth;  // Ix by the cell, a depth below the top

// --- first_moment_formulas.cpp ----------------------------------------------------------------
CFormulaFunction WideHMoment;
CFormulaFunction TMoment;
CFormulaFunction SquareTubeMoment;
CFormulaFunction RoundTubeMoment;
CFormulaFunction HotAngleMoment;
CFormulaFunction ColdAngleMoment;
CFormulaFunction LippedAngleMoment;
CFormulaFunction ColdChannelMoment;
CFormulaFunction LippedMoment;  // lipped channel and Z
CFormulaFunction SlantLipMoment;
CFormulaFunction FlangedCrossMoment;
CFormulaFunction HexagonMoment;
CFormulaFunction TriangleMoment;

// --- thickness_formulas.cpp -------------------------------------------------------------------
// Solids count as thick as the largest circle inside them is wide.
CFormulaFunction RectangleThickness;
CFormulaFunction HexagonThickness;
CFormulaFunction TriangleThickness;
CFormulaFunction TubeThickness;
CFormulaFunction CrossBarThickness;

// --- warping_formulas.cpp: shear centre and warping by thin-walled theory ---------------------
CFormulaFunction IWarping;
CFormulaFunction ChannelShearCentre;
CFormulaFunction ChannelWarping;
CFormulaFunction TShearCentre;  // the cell: centroid below the top
CFormulaFunction AngleShearCentre;
CFormulaFunction PlateShearCentre;  // user-defined sections of plates
CFormulaFunction PlateWarping;

// --- pair_formulas.cpp ------------------------------------------------------------------------
CFormulaFunction PairWidth;
CFormulaFunction PairHeight;
CFormulaFunction PairY;
CFormulaFunction PairIy;
CFormulaFunction PairRadiusY;   // the spacing's column, else from Iy
CFormulaFunction PairModulusY;  // the spacing's column, else from Iy
CFormulaFunction PairMoment;
CFormulaFunction PairThickest;
CFormulaFunction PairThinnest;
CFormulaFunction AnglePairShearCentre;
CFormulaFunction BackToBackWarping;
CFormulaFunction ToeToToeWarping;
CFormulaFunction CrossPairIx;
CFormulaFunction CrossPairRadiusX;
CFormulaFunction CrossPairModulusX;
CFormulaFunction CrossPairModulusY;
CFormulaFunction CrossPairMoment;

// --- lattice_formulas.cpp ---------------------------------------------------------------------
CFormulaFunction LatticeWidth;
CFormulaFunction LatticeHeight;
CFormulaFunction LatticeMoment;
CFormulaFunction LatticeThickest;
CFormulaFunction LatticeThinnest;

}  // namespace orv3
