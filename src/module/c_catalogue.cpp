// The C interface: the catalogue, the geometry of its rows, and the browser.
#include <cmath>
#include <utility>

#include "catalogue/exact/row_exact.h"
#include "catalogue/outline/row_doubts.h"
#include "dialogs/model/spacing_model.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "module/c_support.h"
#include "platform/store_error.h"
#include "sections/load_data_table.h"
#include "tables/data_table.h"
#include "tables/file/table_store.h"

namespace orv3::c_interface {
namespace {

constexpr wchar_t kNumber[] = L"No.";

CString WithSeparator(const CString& folder) {
  const CString last = folder.Right(1);
  return last == L"/" || last == L"\\" || last.IsEmpty() ? folder : folder + L"/";
}

void NeedData() {
  if (CLoadDataTable::GetOrvoPrgPath().IsEmpty())
    throw CFailure("no data folder is open; call orv3_open_data");
}

CDataTable TableOf(const orv3_char* argument) {
  NeedData();
  CDataTable table;
  table.SetTableName(TextOf(argument, "table"));
  table.SetSaveTablePath(CLoadDataTable::GetOrvoPrgPath());
  if (table.GetSystemJmTable() == 0) {
    throw CFailure("table: \"" + ToUtf8(table.GetTableName()) + "\" cannot be read (" +
                   ToUtf8(LastStoreError().m_strText) + "); orv3_list_tables names the tables");
  }
  return table;
}

CDataItem RowOf(const orv3_char* table, const orv3_char* number) {
  NeedData();
  const CString tableName = TextOf(table, "table");
  const CString no = TextOf(number, "number");
  CDataItem row = CLoadDataTable::GetSysTemJMItem(tableName, no);
  if (row.IsEmpty()) {
    TableOf(table);  // tells a missing table from a missing section
    throw CFailure("number: \"" + ToUtf8(no) + "\" is not in the table \"" + ToUtf8(tableName) +
                   "\"; orv3_list_numbers names its sections");
  }
  return row;
}

const CDataCell& CellOf(const CDataItem& row, const orv3_char* sign) {
  const CString text = TextOf(sign, "sign");
  const int index = row.GetSignIndex(text);
  if (index < 0) {
    throw CFailure("sign: \"" + ToUtf8(text) + "\" is no column of the table \"" +
                   ToUtf8(row.GetTableName()) + "\"; orv3_list_columns names them");
  }
  return row[index];
}

// A row to be computed with.
CDataItem SoundRowOf(const orv3_char* table, const orv3_char* number) {
  CDataItem row = RowOf(table, number);
  if (const auto what = Contradiction(row)) {
    throw CFailure("number: the row of \"" + ToUtf8(std::as_const(row)[0].m_strValue) +
                   "\" contradicts itself: " + what->m_strEnglish +
                   "; correct its sizes or figures in the store");
  }
  return row;
}

// The quarter turn from 0 to 270 degrees that a turn comes to.
double QuarterTurnOf(double turn) {
  constexpr double kQuarter = 90;
  constexpr double kSame = 1e-4;  // degrees, as the geometry itself takes a turn
  const double within = std::remainder(turn, 4 * kQuarter);
  const double quarters = std::round(within / kQuarter);
  if (!(std::fabs(within - kQuarter * quarters) < kSame)) {
    throw CFailure("turn: " + ToUtf8(FormatShortest(turn)) +
                   " is no quarter turn; give a multiple of 90 degrees");
  }
  return kQuarter * (quarters < 0 ? quarters + 4 : quarters);
}

// The row with its two parts this far apart.
CDataItem SpacedRow(const CDataItem& row, double spacing) {
  constexpr double kMost = 1000;
  if (SpacingKindOf(row.GetTableName()) == CSpacingKind::None) {
    throw CFailure("table: \"" + ToUtf8(row.GetTableName()) +
                   "\" has no spacing; orv3_geometry takes its sections");
  }
  if (!(spacing >= 0 && spacing <= kMost && spacing == std::floor(spacing))) {
    throw CFailure("spacing: " + ToUtf8(FormatShortest(spacing)) +
                   " mm is not possible; give a whole number from 0 to 1000");
  }
  return WithSpacing(row, FormatInt(static_cast<int>(spacing)));
}

// In the order of the enumeration in the header.
std::vector<double> GeometryOf(const CDataItem& row, double turn) {
  using F = CLoadDataTable;
  double width = 0, height = 0, xc = 0, yc = 0, Ix = 0, Iy = 0;
  F::GetDataItemRect(row, width, height, turn);
  F::GetDataItemCenter(row, xc, yc, turn);
  F::GetDataItemIo(row, Ix, Iy, turn);
  return {F::GetDataItemArea(row),
          width,
          height,
          xc,
          yc,
          Ix,
          Iy,
          F::GetDataItemSxo(row),
          F::GetDataItemRadixo(row),
          F::GetDataItemRadiyo(row),
          F::GetDataItemWxo1(row),
          F::GetDataItemWxo2(row),
          F::GetDataItemWyoL(row),
          F::GetDataItemWyoR(row),
          F::GetDataItemMaxThick(row),
          F::GetDataItemMinThick(row),
          F::GetDatIteme0(row),
          F::GetDataItemIw(row),
          static_cast<double>(F::IsDaTaItemSymmetryX(row)),
          static_cast<double>(F::IsDaTaItemSymmetryY(row))};
}

#ifdef _WIN32
std::vector<CString> ValuesOf(const CDataItem& row) {
  std::vector<CString> lines{L"table=" + row.GetTableName()};
  for (int i = 0; i < row.GetItemLength(); ++i)
    lines.push_back(row.GetCellSign(i) + L"=" + row[i].m_strValue);
  return lines;
}
#endif

}  // namespace
}  // namespace orv3::c_interface

using namespace orv3;
using namespace orv3::c_interface;

int ORV3_CALL orv3_open_data(const orv3_char* folder) {
  return Guarded([&] {
    const CString path = WithSeparator(TextOf(folder, "folder"));
    CStringArray names;
    if (CDataTable::GetTableNameFromFile(path + kSystemStore, names) == 0) {
      throw CFailure("folder: \"" + ToUtf8(path) + "\" has no section store " +
                     ToUtf8(kSystemStore) + " (" + ToUtf8(LastStoreError().m_strText) + ")");
    }
    CLoadDataTable::SetOrvoPrgPath(path);
    return 0;
  });
}

int ORV3_CALL orv3_list_tables(int mask, orv3_char* text, int size) {
  return Guarded([&] {
    NeedData();
    CStringArray stored, names;
    CDataTable::GetTableNameFromFile(CLoadDataTable::GetOrvoPrgPath() + kSystemStore, stored);
    CLoadDataTable::SelectTableNameArray(mask, stored, names);
    return GiveText(JoinLines({names.begin(), names.end()}), text, size);
  });
}

int ORV3_CALL orv3_list_columns(const orv3_char* table, orv3_char* text, int size) {
  return Guarded([&] {
    const CDataTable source = TableOf(table);
    std::vector<CString> lines;
    lines.reserve(static_cast<std::size_t>(source.GetTableColNum()));
    for (int i = 0; i < source.GetTableColNum(); ++i) lines.push_back(source.m_Title.GetColSign(i));
    return GiveText(JoinLines(lines), text, size);
  });
}

int ORV3_CALL orv3_list_numbers(const orv3_char* table, orv3_char* text, int size) {
  return Guarded([&] {
    const CDataTable source = TableOf(table);
    const int col = source.GetTableColIndex(kNumber);
    std::vector<CString> lines;
    for (int i = 0; col >= 0 && i < source.GetTableRowNum(); ++i) {
      if (source[i].GetItemModifyType() >= 0) lines.push_back(source[i][col].m_strValue);
    }
    return GiveText(JoinLines(lines), text, size);
  });
}

int ORV3_CALL orv3_cell(const orv3_char* table, const orv3_char* number, const orv3_char* sign,
                        orv3_char* text, int size) {
  return Guarded(
      [&] { return GiveText(CellOf(RowOf(table, number), sign).m_strValue, text, size); });
}

int ORV3_CALL orv3_cell_value(const orv3_char* table, const orv3_char* number,
                              const orv3_char* sign, double* value) {
  return Guarded([&] {
    const CString text = CellOf(RowOf(table, number), sign).m_strValue;
    if (!IsNumber(text)) throw CFailure("the cell holds \"" + ToUtf8(text) + "\", no number");
    return GiveValue(ToDouble(text), value);
  });
}

int ORV3_CALL orv3_exact(const orv3_char* table, const orv3_char* number, double* values,
                         int room) {
  return Guarded(
      [&] { return GiveExact(ExactProperties(SoundRowOf(table, number)), values, room); });
}

int ORV3_CALL orv3_geometry(const orv3_char* table, const orv3_char* number, double turn,
                            double* values, int room) {
  return Guarded([&] {
    const double quarter = QuarterTurnOf(turn);
    return GiveValues(GeometryOf(SoundRowOf(table, number), quarter), values, room);
  });
}

int ORV3_CALL orv3_pair_geometry(const orv3_char* table, const orv3_char* number, double spacing,
                                 double turn, double* values, int room) {
  return Guarded([&] {
    const double quarter = QuarterTurnOf(turn);
    const CDataItem row = SpacedRow(SoundRowOf(table, number), spacing);
    return GiveValues(GeometryOf(row, quarter), values, room);
  });
}

#ifdef _WIN32

namespace {

using CVisit = int (*)(const CString& path, CDataItem& row, long mask);

int ChooseIn(CVisit visit, int mask, orv3_char* text, int size) {
  return Guarded([&] {
    NeedData();
    CDataItem row;
    const CString path = CLoadDataTable::GetOrvoPrgPath();
    const bool chosen = visit(path, row, mask) != 0;
    return GiveText(chosen ? JoinLines(ValuesOf(row)) : CString(), text, size);
  });
}

}  // namespace

int ORV3_CALL orv3_browse(int mask, orv3_char* text, int size) {
  return ChooseIn(CLoadDataTable::VisitDataBase, mask, text, size);
}

int ORV3_CALL orv3_edit_user_tables(int mask, orv3_char* text, int size) {
  return ChooseIn(CLoadDataTable::VisitSelJMDlg, mask, text, size);
}

#else

namespace {

int NoDialogs() {
  return Guarded([]() -> int { throw CFailure("the dialogs are part of the Windows library"); });
}

}  // namespace

int ORV3_CALL orv3_browse(int, orv3_char*, int) { return NoDialogs(); }

int ORV3_CALL orv3_edit_user_tables(int, orv3_char*, int) { return NoDialogs(); }

#endif
