// CDataTable: a named heading of columns and an array of rows, with unique keys, searching by
// expressions, sorting, and edit states that let a file be rewritten in place.
//
// Every row's m_nIndex is its stable index; positions change when rows are sorted or removed,
// indices do not. A row with a negative m_nModifyType is deleted: it stays in the array until the
// next save and is skipped by searches. A table is used from one thread at a time.
//
// Members return 1 for success, 0 for failure, -1 for a position not found. A position outside the
// rows or cells raises CInvalidArgException where the member's comment does not say otherwise.
#pragma once

#include <memory>
#include <vector>

#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_item.h"
#include "tables/data_item_array.h"
#include "tables/data_type.h"
#include "tables/file/info.h"

namespace orv3 {
class CRowIndex;
class CStoreFile;
class CTableMerge;
struct CRecordPlan;
struct CTableImage;
struct CSearchExpression;
}  // namespace orv3

class ORV3CAL_API CDataTable {
 public:
  using KVBT_Value_Type = CDataTypeStruct::KVBT_Value_Type;
  static constexpr int kMaxTableName = 64;

  CDataTable();
  // Copies everything but m_strFileInfo; assigning a table to itself raises CInvalidArgException.
  CDataTable(const CDataTable& other);
  CDataTable& operator=(const CDataTable& other);
  virtual ~CDataTable();

  // --- Counts and look-up -----------------------------------------------------------------------
  int GetTableColNum() const noexcept { return m_Title.GetTableTitleNum(); }
  int GetTableRowNum() const noexcept { return m_arrItem.GetSize(); }  // deleted rows included
  int GetRealTableRowNum() const noexcept;                             // without deleted rows
  // The same of the table at the root of the parents.
  int GetFullTableColNum() const noexcept { return Root().GetTableColNum(); }
  int GetFullTableRowNum() const noexcept { return Root().GetTableRowNum(); }
  // Position of the first row whose stable index is `index`; -1 when negative or not there.
  int GetTableIndex(int index) const;
  CDataItem& operator[](int position) { return m_arrItem[position]; }
  const CDataItem& operator[](int position) const { return m_arrItem[position]; }
  int GetTableColIndex(std::wstring_view sign) const noexcept { return m_Title.GetColIndex(sign); }
  int GetTableColIndex(const wchar_t* sign) const noexcept { return m_Title.GetColIndex(sign); }

  // --- Name, parent, file -----------------------------------------------------------------------
  CString GetTableName() const { return m_strTableName; }
  void SetTableName(const CString& name);  // cut to 64 characters; every row carries it too
  // 0 for a parent with fewer columns or rows than this table; null always succeeds. The parent is
  // not owned and must outlive its use.
  int SetParentTable(CDataTable* parent);
  void SetTableFileInfo(const CString& info);  // here and in every row
  CString GetSaveTablePath() const { return m_strSavePath; }
  void SetSaveTablePath(const CString& path) { m_strSavePath = path; }
  // The sketch of the first row's section style (of the table's own name when there is no row); the
  // caller deletes it.
  void GetItemBitmap(CBitmap*& out) const;
  // Empties name, parent, rows and columns; path and file information stay.
  void ClearTable();

  // --- Columns: they change the heading only, never the rows ------------------------------------
  int InsertTableCol(int position, const CDataTypeStruct& column);
  int InsertTableCol(int position, const CString& name, const CString& sign, KVBT_Value_Type type,
                     int bKey);
  void AddTableCol(const CDataTypeStruct& column);
  void AddTableCol(const CString& name, const CString& sign, KVBT_Value_Type type, int bKey);
  int SetTableCol(int position, const CDataTypeStruct& column);
  // Name and sign are cut to 64 and 20 characters.
  int SetTableColTitle(int position, const CString& name, const CString& sign, KVBT_Value_Type type,
                       int bKey);
  int SetTableColSign(int position, const CString& sign);
  int SetTableColKey(int position, int bKey);
  int SetTableColType(int position, KVBT_Value_Type type);
  CString GetTableColName(int position) const;              // empty out of range
  CString GetTableColSign(int position) const;              // empty out of range
  int GetTableColKey(int position) const;                   // 0 out of range
  KVBT_Value_Type GetDataTableColType(int position) const;  // the stored type; 0 out of range
  // The column at a position below the number of rows; an empty one from there on, so that a table
  // without rows gives empty ones only. Callers of an empty table use the heading.
  CDataTypeStruct GetTableColTitle(int position) const;
  // One column per cell of `row`; 0 when the row has no cells or the table has rows.
  int setTableTitle(const CDataItem& row);

  // --- Rows -------------------------------------------------------------------------------------
  // Adds a copy of `row`, in the place of the first deleted row if there is one. `row` itself gets
  // the index and the edit state (1 when `bNew`, else 3). 0, with the duplicate-key message, when a
  // row with its key is there. With `bNoCheck` the row is appended as it is.
  int AddTableItem(CDataItem& row, int bNew, int bNoCheck = 0);
  int AddTableItem(const CStringArray& values, int bNew);  // one value per column
  int AddTableItem(const CString& text, int bNew);         // the same split at each ","
  int AddTableItem(const wchar_t* text, int bNew) { return AddTableItem(CString(text), bNew); }
  // Replaces the row whose stable index is `index`; `row` gets that index and edit state 2, or 3
  // when its own was above 2. 0 when there is none or, with the message, another has its key.
  int ModifyTableItem(int index, CDataItem& row);
  int ModifyTableItem(int index, const CStringArray& values);
  int ModifyTableItem(int index, const CString& text);
  int ModifyTableItem(int index, const wchar_t* text) {
    return ModifyTableItem(index, CString(text));
  }
  // Removes a row that was never saved, marks any other as deleted.
  int DeleteTableItem(int index);
  // Brings in a row from elsewhere; a row with its key is replaced only with `bOverwrite`. `row`
  // gets its index here and edit state 1 for 0, 3 for 4. A deleted row is passed over (1).
  int ImportTableItem(CDataItem& row, int bOverwrite);
  // Every row of a table with the same name, as by ImportTableItem; an empty heading is taken over
  // from it.
  int ImporDatatTable(CDataTable& other, int bOverwrite);
  // Position of the first live row with the key of `row` (with `value` in column `col`), the row of
  // stable index `skipIndex` left aside; -1 when there is none or the table has no key.
  int IsHaveValue(const CDataItem& row, int skipIndex) const;
  int IsHaveValue(int col, const CString& value, int skipIndex) const;

  // --- Searching and ordering -------------------------------------------------------------------
  // Whether a cell equals `pattern`; with `bWildcard` a "*" at an end of the pattern stands for any
  // text there. Floating columns are equal within 1e-6.
  int IsSelected(int position, int col, const CString& pattern, int bWildcard) const;
  // Whether a cell is ">>", "<<", ">=" or "<=" `value`; 0 for any other operator.
  int IsComPile(int position, int col, const CString& value, const CString& op) const;
  // Filters the positions in `result` (`bAnd`) or adds the matching live rows to them.
  int SearchTableIndex(CArray<int, int>& result, const wchar_t* sign, const wchar_t* value,
                       const CString& op, int bAnd, int bWildcard) const;
  // The rows that match conditions "sign op value" joined by "&&" or by "||", optionally followed
  // by "VIEW" and the columns to keep, as a new table with this one as its parent.
  CDataTable SearchTable(const wchar_t* expression, int bWildcard);
  // All rows with the columns whose signs are in a list joined by "<<>>".
  CDataTable ViewTable(const wchar_t* columns);
  // Sorts by a column, ascending and stable with `bAscending` 1; descending, equal rows reversed,
  // with 0. 0 when there is no such column.
  int OrderTable(int col, int bAscending);
  int OrderTable(const wchar_t* sign, int bAscending);

  // --- Texts ------------------------------------------------------------------------------------
  static void TransStrToArray(const CString& text, const CString& separator, CStringArray& out);
  // 1 and the number when the whole text is one within the bounds (upper bound first).
  static int CheckDouble(const CString& text, double& out, double max, double min);
  static int CheckInt(const CString& text, long& out, long max, long min);

  // --- Table files: see tables/file/layout.h -----------------------------------------------------
  // Text as it goes to a file ("fake" form), one byte a character, and back; see
  // file/table_text.h. A character that the ANSI code page lacks becomes "?"; saves refuse it.
  static CString TransStringToFake(const CString& text);
  static CString TransFakeToString(const char* stored);
  CString TransItemToFake(int position) const;
  // Appends the row of stored bytes; 0 when it has fewer values than the table columns,
  // CInvalidArgException when it has more.
  int TransItemToNormal(const char* stored);
  int GetTableItemLen() const;   // bytes of a row slot
  int GetTableTitleLen() const;  // bytes of the heading
  int GetTableTextLen() const;   // bytes of the heading and all rows
  // Finds or makes the table's record in the file, with room for its rows. Like every change to a
  // CStoreFile it lasts once that is committed. Store kinds: 0 system, 1 user, 2 current.
  int WriteTableFileInfo(orv3::CStoreFile* file, int storeKind, CDataFileInfo& info);
  // Saves the table: rows that changed, or every row with `bAll`. All of it or nothing; after 0
  // orv3::LastStoreError() says why. After 1 every row can be read again; what a file cuts of a
  // value, and what is refused, is in tables/table_file_proof.h. What others have saved into the
  // table since it was read is brought in first and its own rows placed after them; a row that both
  // changed stays as it is here. A table that was never read from this file is taken as having only
  // rows of its own; with `bAll` it replaces the one on file.
  int WriteTable(const CString& path, int storeKind, int bAll);
  // Stable indices of the rows that the last WriteTable brought in.
  const CArray<int, int>& GetTakenInIndex() const noexcept { return m_arrTakenIn; }
  int ReadTableFileInfo(orv3::CStoreFile* file, CString& infoLine, CDataFileInfo& info) const;
  // The file's information line. A table without a name is given the name "test".
  int ReadTableFileInfo(const CString& path, CString& infoLine);
  // Reads the table of this name: takes over its heading and appends its rows. After 0 nothing has
  // changed. CInvalidArgException for a row with more values than the heading has columns.
  int GetTable(const CString& path, CString& infoLine);
  // Appends the names of a file's tables; their number.
  static int GetTableNameFromFile(const CString& path, CStringArray& names);

  // --- Section stores, under the save path: see tables/table_store.h ----------------------------
  // An empty save path first becomes the program path.
  int GetSystemJmTable();
  int GetCurrentJmTable();
  // The user table whose file has this information line.
  int GetUserJmTable(const CString& key);
  int WriteSystemJmTable();
  int WriteCurrentJmTable();
  int WriteUserJmTable(const wchar_t* fileName);
  // Append the names of a store's tables; their number.
  int GetSystemJmTableName(CStringArray& names);
  int GetCurrentJmTableName(CStringArray& names);
  // Always 0: the user store is a folder. GetUserTableFileName lists its files.
  int GetUserJmTableName(CStringArray& names);
  // Appends the user store's files and drops from the list those of another kind; its length.
  int GetUserTableFileName(CStringArray& files);
  // Appends the names in a folder that end with "." and `ext`, in which "*" stands for any text;
  // the length of the list.
  static int GetDirectoryFileName(const wchar_t* dir, CStringArray& files, const CString& ext);

  CString m_strFileInfo;   // information line of the table file last read or written
  CString m_strSavePath;   // directory of the table stores, ending with a separator
  CString m_strTableName;  // at most 64 characters
  CDataTableTitle m_Title;
  CDataItemArray m_arrItem;  // in display order
  CDataTable* m_pParentTable = nullptr;

 private:
  const CDataTable& Root() const noexcept;
  orv3::CRowIndex& Index() const;
  // Positions of the live rows with the key of `row`, ascending.
  std::vector<int> FindByKey(const CDataItem& row) const;
  // Whether a row other than the one at `ownPosition` has the key of `row`; says so to the user.
  bool RefuseDuplicate(const CDataItem& row, int ownPosition) const;
  void ReplaceRow(int position, const CDataItem& row);
  CDataItem RowOf(const CStringArray& values) const;
  CString DerivedName() const;
  std::vector<int> FindPositions(const orv3::CSearchExpression& search, bool wildcard) const;

  CString StorePath(const wchar_t* name);
  struct CRowWrite;
  friend class orv3::CTableMerge;
  bool TakeUpImage(const CString& path);
  std::vector<int> SlotsIn() const;
  int CatchUp(const orv3::CStoreFile& file, bool replaceUnknown);
  void TakeIn(const orv3::CTableMerge& merge);
  void SeparateIndices(const orv3::CTableImage& image);
  int CollectRows(const orv3::CStoreFile& file, bool all, std::vector<CRowWrite>& writes) const;
  int PlanRecord(const orv3::CStoreFile& file, int storeKind, orv3::CRecordPlan& plan) const;
  int PlanHeading(const orv3::CStoreFile& file, orv3::CRecordPlan& plan) const;
  void CopyImages(const CDataTable& other);
  void MarkSaved(const orv3::CStoreFile& file, const orv3::CRecordPlan& plan,
                 const std::vector<CRowWrite>& writes);

  mutable std::unique_ptr<orv3::CRowIndex> m_pIndex;
  std::shared_ptr<orv3::CTableImage> m_pImage;  // what is on file; null before reading and saving
  // Of the files that the table was saved to before the last one, the latest first: its edit states
  // tell nothing of them, but they do what has changed since.
  std::vector<std::shared_ptr<orv3::CTableImage>> m_arrEarlierImage;
  // The rows' arrangement in which each slot of m_pImage has its row at its position.
  static constexpr unsigned long long kNoArrangement = ~0ULL;
  unsigned long long m_nImageArrangement = kNoArrangement;
  CArray<int, int> m_arrTakenIn;
};
