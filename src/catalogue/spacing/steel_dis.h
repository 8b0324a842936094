// CGetSteelDis: where bolt lines may be set out on the legs and flanges of rolled sections, the
// largest holes that fit there, and the plates and copes that fit between the flanges.
//
// Every cell is a text, mm; column 0 is the section's key. data/spacing/SOURCES.md tells what each
// column means and where the figures come from. Two peculiarities are kept: the rows of strSub4
// that stand where 20a and 20b belong carry the keys 22a and 22b, and some cells hold a letter
// where a digit is meant, at which reading them as numbers stops.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"

class ORV3CAL_API CGetSteelDis {
 public:
  // --- Angles, by leg width: the line's distance from the back, the next line's from it, the hole
  static const wchar_t* const strSub1[11][3];  // one line
  static const wchar_t* const strSub2[3][4];   // two staggered lines
  static const wchar_t* const strSub3[4][4];   // two parallel lines
  // --- By number ("20a"): gauge of the flange, thickness there, hole; gauge of the web, its
  // straight height, hole
  static const wchar_t* const strSub4[34][7];  // ordinary I
  static const wchar_t* const strSub5[27][7];  // light I
  static const wchar_t* const strSub6[30][7];  // ordinary channels
  static const wchar_t* const strSub7[22][7];  // light channels
  // --- By number with prefix ("I20a", "[20a"), three tables a series: stiffener inside the
  // flange's outstand, stiffener flush with the flange's edge, cope
  static const wchar_t* const strSub8[34][6];  // ordinary I
  static const wchar_t* const strSub9[34][7];
  static const wchar_t* const strSub10[34][5];
  static const wchar_t* const strSub11[27][6];  // light I
  static const wchar_t* const strSub12[27][7];
  static const wchar_t* const strSub13[27][5];
  static const wchar_t* const strSub14[30][6];  // ordinary channels
  static const wchar_t* const strSub15[30][7];
  static const wchar_t* const strSub16[30][5];
  static const wchar_t* const strSub17[22][6];  // light channels
  static const wchar_t* const strSub18[22][7];
  static const wchar_t* const strSub19[22][5];

  // Tables are counted from 0: 0 is strSub1, 18 is strSub19.

  // The cells of the last row with this key, joined with ","; empty when there is none, or no such
  // table.
  static void GetSubData(int table, const CString& no, CString& row);

  // A figure of a model number such as "L50X5" or "[14a": of its leading "L" and "[" nothing
  // counts, then three characters do, less "X" at their end.
  //   table 0     70 for leg widths from 125 on and 5 for all others, whatever strSub1 says: the
  //               look-up has always let the last row decide. The joined row gives the gauge.
  //   table 5, 6  the gauge of a channel's web; the number itself for one without a row
  //   others      the number itself
  static double GetSubData(int table, const CString& no);

  // The same for a section of a catalogue table: angles by table 0, ordinary and light channels by
  // table 5 and 6; 0 for any other.
  static double GetSubData(const CString& styleName, const CString& no);
};
