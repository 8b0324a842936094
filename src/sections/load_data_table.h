// CLoadDataTable: the static facade by which commands reach section tables: the program directory,
// look-ups in the stores, the table names of a mask, and the geometry of a row.
//
// Operations that build on a floor above this one are defined there: importing and lattice rows in
// catalogue/, the dialogs in dialogs/win32/. Whatever needs another row goes through
// GetSysTemJMItem.
#pragma once

#include <string_view>

#include "drawing/bitmap.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "sections/table_types.h"
#include "tables/data_item.h"

class ORV3CAL_API CLoadDataTable {
 public:
  CLoadDataTable() = default;
  virtual ~CLoadDataTable() = default;

  // --- Program directory ------------------------------------------------------------------------
  static void SetOrvoPrgPath(const CString& path);
  static CString GetOrvoPrgPath();

  // --- Table names by type (table_types.h) ------------------------------------------------------
  static void GetTableNameArray(long mask, CStringArray& names);
  // The mask's names, in its order, that are among `available`.
  static void SelectTableNameArray(long mask, const CStringArray& available, CStringArray& names);
  static int IsTableNameType(const CString& tableName, long mask);

  // --- Look-ups in the stores of the program directory ------------------------------------------
  // The "No." texts of a system table's live rows; 0 without the table or with fewer than 2
  // columns.
  static int GetSysTemItemNo(const CString& tableName, CStringArray& numbers);
  // A row without cells when there is no such table or section.
  static CDataItem GetSysTemJMItem(const CString& tableName, const CString& no);
  static CDataItem GetUserJMItem(const CString& tableName, const CString& no, const CString& file);
  static int IsHaveSystemJMItem(const CString& tableName, const wchar_t* expression);

  // --- Rows -------------------------------------------------------------------------------------
  // Fills the row of a user-defined or lattice table with a default section; 0 for another table.
  static int GetDefaultDataItem(CDataItem& item);
  // 1 when a user-defined row can be kept; else 0, after a message that says what is wrong.
  static int CheckCustomDataItem(const CDataItem& item);
  // The sizes of a row as people write them, such as "400X300X10X10".
  static CString GetItemSizeString(const CDataItem& item);
  // The pictures of the tree, and the index there of a table's own; -1 for an unknown name.
  static void GetItemImageList(CArray<CBitmap, const CBitmap&>& images);
  static int GetItemIcon(const CString& tableName);

  // --- Import: a table file or a rolled-section data file into a store --------------------------
  // 1 when the source was read and the store saved, with `flag` rows of the same number replaced;
  // 0, the store unchanged, otherwise. orv3::ImportFile (catalogue/import/table_import.h) tells
  // what became of each row.
  static int ImportDataTable(const CString& file, const CString& storePath, int flag);
  static int ImportSysDataTable(const CString& file, int flag);

  // --- Geometry of a row: mm, mm^2, mm^3, mm^4 (mm^6 for the warping constant) ------------------
  // The angle turns the section counter-clockwise, in degrees; only quarter turns count. What a row
  // does not tell is 0.
  static double GetDataItemArea(const CDataItem& item);
  static void GetDataItemRect(const CDataItem& item, double& width, double& height, double angle);
  // From the enclosing rectangle's left and bottom edges.
  static void GetDataItemCenter(const CDataItem& item, double& x, double& y, double angle);
  static void GetDataItemIo(const CDataItem& item, double& ix, double& iy, double angle);
  static double GetDataItemSxo(const CDataItem& item);
  static double GetDataItemRadixo(const CDataItem& item);
  static double GetDataItemRadiyo(const CDataItem& item);
  static double GetDataItemWxo1(const CDataItem& item);
  static double GetDataItemWxo2(const CDataItem& item);
  static double GetDataItemWyoL(const CDataItem& item);
  static double GetDataItemWyoR(const CDataItem& item);
  static double GetDataItemMaxThick(const CDataItem& item);
  static double GetDataItemMinThick(const CDataItem& item);
  static double GetDatIteme0(const CDataItem& item);
  static double GetDataItemIw(const CDataItem& item);
  static double CalDataItemWo(double inertia, double distance);  // 1e100 at distance 0
  static double CalDataItemRio(double inertia, double area);     // 0 without area
  // Recomputes a user-defined row in place.
  static int CalSectCharacterStyle(CDataItem& item);
  static int IsDaTaItemSymmetryX(const CDataItem& item);  // about the horizontal axis
  static int IsDaTaItemSymmetryY(const CDataItem& item);  // about the vertical axis

#ifdef _WIN32
  // --- Dialogs: 1 and the chosen row after OK on a row of at least 3 cells ----------------------
  static int VisitDataBase(const CString& path, CDataItem& item, long mask);
  static int VisitDataBase(const CStringArray& names, const CString& path, CDataItem& item);
  static int VisitSelJMDlg(const CString& path, CDataItem& item, long mask);
  static int VisitSelJMDlg(const CStringArray& names, const CString& path, CDataItem& item);
#endif
};
