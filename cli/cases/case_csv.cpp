#include <algorithm>

#include "cases/case_cell.h"
#include "cases/case_readers.h"
#include "framework/csv.h"

namespace orv3::cli {
namespace {

class CCsvCases {
 public:
  CCsvCases(CCaseBytes& file, const CCaseSchema& schema)
      : m_file(file), m_schema(schema), m_csv([&file](std::string& text) {
          if (text.size() > kLongestCase) file.RefuseLongCase();
          return file.More(text);
        }) {
    if (!m_csv.Next(m_arrCell)) RefuseNoLine();
    if (IsBlank())
      m_file.Refuse({"首行为空；首行应为各键", "has an empty first line; it holds the keys"});
    for (const std::string_view name : m_arrCell) AddColumn(name);
  }

  bool Next(CReadCase& read) {
    do {
      if (!m_csv.Next(m_arrCell)) {
        if (m_csv.IsMalformed()) RefuseMalformed();
        return false;
      }
    } while (IsBlank());
    for (std::size_t i = 0; i < std::min(m_arrCell.size(), m_arrColumn.size()); ++i) {
      const auto key = static_cast<std::size_t>(m_arrColumn[i]);
      if (m_arrCell[i].empty()) continue;
      read.m_arrValue[key] = CellValue(m_arrCell[i], m_schema.Rules()[key], m_arrList[i]);
    }
    CheckWidth(read);
    return true;
  }

 private:
  void AddColumn(std::string_view name) {
    const int key = m_schema.Find(name);
    if (key < 0) m_file.Refuse(m_schema.Unknown(name).Text());
    const auto before = std::find(m_arrColumn.begin(), m_arrColumn.end(), key);
    if (before != m_arrColumn.end()) {
      const std::string first = std::to_string(before - m_arrColumn.begin() + 1);
      const std::string second = std::to_string(m_arrColumn.size() + 1);
      const std::string sign = std::string(name) + ": ";
      m_file.Refuse({sign + "在首行出现两次（第 " + first + "、" + second + " 列）；请只给一次",
                     sign + "stands twice in the first line, in columns " + first + " and " +
                         second + "; give it once"});
    }
    m_arrColumn.push_back(key);
    m_arrList.emplace_back();
  }

  [[noreturn]] void RefuseNoLine() {
    if (m_csv.IsMalformed()) RefuseMalformed();
    m_file.Refuse({"是空文件；首行应为各键", "is empty; the first line holds the keys"});
  }

  // What stands behind such a cell is not known: the cases there cannot even be counted.
  [[noreturn]] void RefuseMalformed() {
    const std::string line = std::to_string(m_csv.Line());
    m_file.Refuse({"第 " + line +
                       " 行有一个引号单元格没有结束，或其后还有文字；请在分隔符之前结束引号，"
                       "其中的引号写两个",
                   "line " + line +
                       " has a cell in quotation marks that is not closed or goes on behind them; "
                       "close it before the separator, and double the marks within it"});
  }

  bool IsBlank() const {
    return std::all_of(m_arrCell.begin(), m_arrCell.end(), [](auto cell) { return cell.empty(); });
  }

  // A short line has lost its end, and the forces there with it: an empty cell is told by its
  // separator.
  void CheckWidth(CReadCase& read) const {
    const std::size_t keys = m_arrColumn.size();
    if (m_arrCell.size() < keys) {
      const std::string few = std::to_string(m_arrCell.size());
      const std::string all = std::to_string(keys);
      read.m_fault = {"case",
                      {"只有 " + few + " 个单元格，首行有 " + all + " 个键",
                       "has " + few + " cells where the first line has " + all + " keys"},
                      {"空单元格也请写出分隔符", "write the separator of an empty cell as well"}};
    } else if (!std::all_of(m_arrCell.begin() + static_cast<std::ptrdiff_t>(keys), m_arrCell.end(),
                            [](auto cell) { return cell.empty(); })) {
      read.m_fault = {"case",
                      {"单元格多于首行的键", "has more cells than the first line has keys"},
                      {"请为多出的单元格给出键", "give each a key"}};
    }
  }

  CCaseBytes& m_file;
  const CCaseSchema& m_schema;
  CCsvReader m_csv;
  std::vector<std::string_view> m_arrCell;
  std::vector<int> m_arrColumn;                // position of each column's key
  std::vector<std::vector<double>> m_arrList;  // of the case at hand, by columns
};

}  // namespace

void ReadCsvCases(CCaseBytes& file, const CCaseSchema& schema, const CTakeCase& take) {
  CCsvCases cases(file, schema);
  CReadCase read;
  while (true) {
    read.m_arrValue.assign(schema.Rules().size(), std::nullopt);
    read.m_fault.reset();
    if (!cases.Next(read)) return;
    read.m_dDone = file.Done();
    take(read);
  }
}

}  // namespace orv3::cli
