#include "tables/value_fit.h"

#include <cmath>
#include <limits>

#include "framework/excerpt.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

using CType = CDataTypeStruct::KVBT_Value_Type;

constexpr double kMostFloat = std::numeric_limits<float>::max();

CSentence Wanted(CType type) {
  switch (type) {
    case CDataTypeStruct::KVBT_CHAR:
      return {L"一个字符", L"one character"};
    case CDataTypeStruct::KVBT_FLOAT:
      return {L"绝对值不大于 3.4e38 的数值，例如 12.5",
              L"a number of at most 3.4e38, such as 12.5"};
    case CDataTypeStruct::KVBT_DOUBLE:
      return {L"数值，例如 12.5", L"a number, such as 12.5"};
    case CDataTypeStruct::KVBT_INT:
    case CDataTypeStruct::KVBT_LONG:
    case CDataTypeStruct::KVBT_LONG_ALT:
      return {L"-2147483648 至 2147483647 的整数",
              L"a whole number from -2147483648 to 2147483647"};
    case CDataTypeStruct::KVBT_STRING:
      break;
  }
  return {L"文字", L"a text"};
}

}  // namespace

bool Fits(const CDataCell& cell) {
  const CString& value = cell.m_strValue;
  switch (cell.m_nType) {
    case CDataTypeStruct::KVBT_STRING:
      return true;
    case CDataTypeStruct::KVBT_CHAR:
      return value.GetLength() <= 1;
    case CDataTypeStruct::KVBT_FLOAT:
      return value.IsEmpty() || (IsNumber(value) && std::fabs(ToDouble(value)) <= kMostFloat);
    case CDataTypeStruct::KVBT_DOUBLE:
      return value.IsEmpty() || IsNumber(value);
    case CDataTypeStruct::KVBT_INT:
    case CDataTypeStruct::KVBT_LONG:
    case CDataTypeStruct::KVBT_LONG_ALT:
      return value.IsEmpty() || (IsNumber(value) && ToDouble(value) == ToInt(value));
  }
  return false;
}

int FindMisfit(const CDataItem& row) {
  for (int i = 0; i < row.GetItemLength(); ++i) {
    if (!Fits(row[i])) return i;
  }
  return -1;
}

CSentence MisfitText(const CDataCell& cell) {
  const CString value = FromUtf8(Excerpt(ToUtf8(cell.m_strValue)));
  const CString& sign = cell.m_strSign;
  const CSentence right = Wanted(cell.m_nType);
  return {L"列“" + sign + L"”：“" + value + L"”不可用，应为 " + right.m_strChinese,
          L"column \"" + sign + L"\": \"" + value + L"\" is not possible; right would be " +
              right.m_strEnglish};
}

}  // namespace orv3
