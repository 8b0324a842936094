// CSteelJMData: the fixed-size record of one user-defined section: its style, name, plate sizes,
// base point and computed properties.
//
// The frame: x to the right, y upwards, origin at the lower-left corner of the section's bounding
// box. Units: mm, mm^2, mm^3, mm^4. X0, Y0 are the centroidal axes, X, Y the axes through the base
// point. What each size means is told by section_style.h.
#pragma once

#include <cstdint>
#include <string_view>

#include "framework/array.h"
#include "framework/export.h"
#include "sections/section_style.h"
#include "tables/data_item.h"

class CDataTable;
namespace orv3 {
class CStoreFile;
}

class ORV3CAL_API CSteelJMData {
 public:
  static constexpr int kNameLength = 50;  // characters, the ending zero included
  static constexpr int kSizeCount = orv3::kSectionSizes;

  CSteelJMData() = default;
  // Copies take the name up to its ending zero.
  CSteelJMData(const CSteelJMData& other);
  CSteelJMData& operator=(const CSteelJMData& other);
  virtual ~CSteelJMData() = default;

  void SetName(std::wstring_view name);  // cut to 49 characters

  // --- Sizes: each clears the array first -------------------------------------------------------
  // The sizes that give the outer extents: s0 and s1, or s0 alone (styles 4, 6 and 7).
  void GetSectBaseSize(CArray<double, double>& sizes) const;
  // The sizes behind them. Style 15, which has no table and no calculation, gives those of s2 to s6
  // that are not 0 within 1e-6.
  void GetSectExternSize(CArray<double, double>& sizes) const;
  // All sizes of the style in column order; s0 alone for a style outside 0 to 14.
  void GetSectSizeArr(CArray<double, double>& sizes) const;
  // Sets the style and the first min(count, 8) sizes; the others and the properties stay.
  void SetSectSize(int style, const CArray<double, double>& sizes);

  // --- Rows and headings ------------------------------------------------------------------------
  // Fills the record from a row of a section table, whose name tells the style, and computes it.
  // Sizes and base point are read by position; a cell that is missing or not KVBT_DOUBLE leaves its
  // field. A name beyond 49 characters is cut. 0 for a row of fewer than 11 cells (record
  // unchanged) or of another table (name and state already taken).
  int TransItemToJMData(const CDataItem& row);
  // Writes the record into a row, with "%G"; a row of fewer than 2 cells gets the style's heading
  // first. The name is cut to 30 characters and trimmed. 0 when the row's cells do not match the
  // values in number; a comma in the name makes one value more.
  int TransJMDataToItem(CDataItem& row) const;
  // Gives `table` the columns of a style. 0 for a table without a name (unchanged) and for a style
  // outside 0 to 14 (the heading then holds "No." alone).
  static int GetJMTableTitle(CDataTable& table, int style);

  // --- Properties -------------------------------------------------------------------------------
  static void InitJMData(CSteelJMData& jm);  // the 25 properties to 0; all else stays
  // Computes the 25 properties; all 0 for a style outside 0 to 14. Never fails: sizes that make no
  // section give what the formulas give, NaN included. No allocation.
  static void CalSectCharacterStyle(CSteelJMData& jm);

  // One per shape, in a numbering of their own. Each returns at once, changing nothing, for a
  // record of another style. First moments outside the section's range are left as they are.
  static void CalSectCharacterStyle1(CSteelJMData& jm);   // 3, rectangle
  static void CalSectCharacterStyle2(CSteelJMData& jm);   // 14, general box
  static void CalSectCharacterStyle3(CSteelJMData& jm);   // 4, regular hexagon
  static void CalSectCharacterStyle4(CSteelJMData& jm);   // 5, triangle
  static void CalSectCharacterStyle5(CSteelJMData& jm);   // 6, circle
  static void CalSectCharacterStyle6(CSteelJMData& jm);   // 7, tube
  static void CalSectCharacterStyle7(CSteelJMData& jm);   // 8, T
  static void CalSectCharacterStyle8(CSteelJMData& jm);   // 9, general H
  static void CalSectCharacterStyle9(CSteelJMData& jm);   // 10, L
  static void CalSectCharacterStyle10(CSteelJMData& jm);  // 11, Z
  static void CalSectCharacterStyle11(CSteelJMData& jm);  // 12, channel
  static void CalSectCharacterStyle12(CSteelJMData& jm);  // 13, cross
  static void CalSectCharacterStyle13(CSteelJMData& jm);  // 2, cross with flanges
  static void CalSectCharacterStyle14(CSteelJMData& jm);  // 0, symmetric H
  static void CalSectCharacterStyle15(CSteelJMData& jm);  // 1, symmetric box

  // Base-axis inertia, radii of gyration and all moduli from centroid, area and centroidal inertia,
  // for the total width W and height H. Moduli measure to the edges of the bounding box and are
  // 1e100 where that distance is 0.
  static void CalSectMomByI0(CSteelJMData& jm, double W, double H);
  // First moment, about an axis at yc, of the part of a rectangle beyond it (`upper` nonzero) or
  // before it (0). The rectangle is b wide along the axis and spans y0 to y0 + |h| across it.
  static double CalRectMomS(double b, double h, double y0, double yc, int upper);
  // Moment of inertia of a b wide, h high rectangle about an axis parallel to its width at distance
  // d from its centroid.
  static double CalRectGxj(double b, double h, double d);
  // Centroid of two areas; the first one's when the areas add up to exactly 0.
  static void CalRectBarycenterAdd(double A1, double x1, double y1, double A2, double x2, double y2,
                                   double& x, double& y);

  // --- Record stores: see record_store.h -------------------------------------------------------
  // Members that take a CStoreFile change it in memory; its Commit makes that last. Groups are 0 to
  // 15, or -1 for a store of one group.
  struct FileInfo {
    std::int32_t m_nGroup = 0;   // -1 in the file header
    std::int32_t m_nOffset = 0;  // of the first slot; the number of groups in the file header
    std::int32_t m_nCount = 0;   // slots in use
  };
  // Saves an array, all of it or nothing. A record in state 1 goes into the first slot that a
  // deleted record before it has freed, else to the end of the group; one in state -1 (deleted) or
  // any other state but 0 into the slot at its own place in the array; one in state 0 stays.
  static int WriteTable(const CArray<CSteelJMData>& records, int group, const CString& path);
  static int WriteTableToSystem(const CArray<CSteelJMData>& records, int group);
  static int WriteTableToUser(const CArray<CSteelJMData>& records);
  static int WriteTableToCurrent(const CArray<CSteelJMData>& records);
  // Appends a group's records, in state -1 those that are deleted and 0 all others.
  static int GetTable(CArray<CSteelJMData>& records, int group, const CString& path);
  static int GetTableToSystem(CArray<CSteelJMData>& records, int group);
  static int GetTableToUser(CArray<CSteelJMData>& records);
  static int GetTableToCurrent(CArray<CSteelJMData>& records);
  // Slots in use; 0 when the store cannot be read.
  static int GetTableLength(int group, const CString& path);
  static int GetTableLengthToSysTem(int group);
  static int GetTableLengthToUser();
  static int GetTableLengthToCurrent();
  static int WriteTableItem(orv3::CStoreFile* file, long position, CSteelJMData record,
                            int bUserStore);
  // 0 as well for a slot without a record: one whose first size is not above 0.
  static int GetTableItem(const orv3::CStoreFile* file, long position, CSteelJMData& record);
  // Makes the headers up to the group's, gives back the group's as it was and sets its count; the
  // groups after it move on when it has grown up to them.
  static int WriteJMFileInfo(orv3::CStoreFile* file, int group, int count, FileInfo& info);
  static int ReadJMFileInfo(const orv3::CStoreFile* file, int group, FileInfo& info);

  // Fill a section table with the live records of the style that its name tells: from the system
  // store, where the group is the style number, or with `store` 1 or 2 from the user or the current
  // store. 0, the table unchanged, for a name of no style or a store that cannot be read.
  static int GetJMTableData(const CString& tableName, CDataTable& table);
  static int TransJMTableData(const CString& tableName, CDataTable& table, int store);

  // --- Data -------------------------------------------------------------------------------------
  wchar_t m_szName[kNameLength] = {};
  std::int32_t m_nState = 0;  // edit state of the row the record came from; -1 deleted
  std::int32_t m_nStyle = 0;
  double m_dX = 0, m_dY = 0;    // base point
  double m_dXo = 0, m_dYo = 0;  // centroid
  double m_dA = 0;
  double m_dIx = 0, m_dIy = 0;                                // about X and Y
  double m_dWx1 = 0, m_dWx2 = 0, m_dWyL = 0, m_dWyR = 0;      // top, bottom, left, right
  double m_dSx1 = 0, m_dSx2 = 0;                              // above and below X
  double m_dSyL = 0, m_dSyR = 0;                              // right (!) and left of Y
  double m_dix = 0, m_diy = 0;                                // radii of gyration
  double m_dIxo = 0, m_dIyo = 0;                              // about X0 and Y0
  double m_dWxo1 = 0, m_dWxo2 = 0, m_dWyoL = 0, m_dWyoR = 0;  // top, bottom, left, right
  double m_dSxo = 0, m_dSyo = 0;                              // above X0, right of Y0
  double m_dixo = 0, m_diyo = 0;                              // radii of gyration
  double m_dSize[kSizeCount] = {};                            // s0 to s7, by style
};
