#include "catalogue_csv.h"

#include <string_view>
#include <vector>

#include "catalogue/rolled/rolled_style.h"
#include "framework/csv.h"
#include "framework/utf8.h"
#include "platform/whole_file.h"

namespace orv3::catalogue {
namespace {

[[noreturn]] void Bad(const std::string& path, const std::string& what) {
  throw CCatalogueError(path + ": " + what);
}

void CheckHeading(const std::string& path, const std::vector<std::string_view>& cells,
                  const CDataTableTitle& title) {
  const auto count = static_cast<std::size_t>(title.GetTableTitleNum());
  for (std::size_t i = 0; i < count; ++i) {
    const std::string sign = ToUtf8(title[static_cast<int>(i)].m_strSign);
    if (i >= cells.size() || cells[i] != sign)
      Bad(path, "column " + std::to_string(i + 1) + " of the first line is to be " + sign);
  }
  if (cells.size() > count) Bad(path, "has more columns than its table");
}

}  // namespace

CDataTable ReadCsvTable(const std::string& folder, int style) {
  const CRolledStyle& of = RolledStyles()[static_cast<std::size_t>(style)];
  std::string path = folder + "/" + ToUtf8(of.m_strFile);
  path.replace(path.size() - 3, 3, "csv");
  std::string bytes;
  if (ReadWholeFile(FromUtf8(path), bytes) != CFileError::None) Bad(path, "cannot be read");

  CDataTable table;
  table.SetTableName(of.Name());
  table.m_Title = RolledTitle(of);
  CCsvReader csv(std::move(bytes));
  std::vector<std::string_view> cells;
  csv.Next(cells);
  CheckHeading(path, cells, table.m_Title);
  while (csv.Next(cells)) {
    CStringArray values;
    for (const std::string_view cell : cells) values.Add(FromUtf8(cell));
    if (!table.AddTableItem(values, 0))
      Bad(path, "row \"" + std::string(cells[0]) + "\" stands twice or lacks cells");
  }
  return table;
}

}  // namespace orv3::catalogue
