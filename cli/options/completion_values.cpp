#include <algorithm>
#include <functional>
#include <sstream>

#include "codes/edition.h"
#include "codes/steel_grade.h"
#include "framework/utf8.h"
#include "options/completion.h"
#include "sections/load_data_table.h"
#include "sections/section_style.h"
#include "store/store_table.h"

namespace orv3::cli {
namespace {

using CValues = std::vector<CCandidate>;

CValues Words(const std::string& text, char separator) {
  CValues values;
  std::istringstream words(text);
  for (std::string word; std::getline(words, word, separator);) values.push_back({word, ""});
  return values;
}

CValues TextValues(const CStringArray& texts) {
  CValues values;
  for (const CString& text : texts) values.push_back({ToUtf8(text), ""});
  return values;
}

CValues Styles() {
  CValues values;
  for (const CSectionStyle& style : SectionStyles())
    values.push_back({style.m_szAlias, ToUtf8(style.TableName())});
  return values;
}

CValues Grades() {
  CValues values;
  for (const char* grade : kGradeNames) values.push_back({grade, ""});
  return values;
}

CValues Tables(const CTypedLine& line) {
  return TextValues(StoreTableNames(StoreToRead(line.m_store)));
}

CValues Numbers(const CTypedLine& line) {
  StoreToRead(line.m_store);
  CStringArray numbers;
  CLoadDataTable::GetSysTemItemNo(FromUtf8(line.m_arrArgument.at(0)), numbers);
  return TextValues(numbers);
}

// The signs of the table's columns, each followed by `end`.
CValues Signs(const CTypedLine& line, const char* end) {
  const CDataTable table =
      StoreTable(StoreToRead(line.m_store), FromUtf8(line.m_arrArgument.at(0)));
  CValues values;
  for (int i = 0; i < table.GetTableColNum(); ++i) {
    values.push_back(
        {ToUtf8(table.m_Title[i].m_strSign) + end, ToUtf8(table.m_Title[i].m_strName)});
  }
  return values;
}

// A question's argument stands in its help: "GRADE T [f|fv|fce]".
CValues CodeArgument(const CTypedLine& line, const std::string& usage) {
  const CValues places = Words(usage, ' ');
  std::string place = places.at(line.m_arrArgument.size()).m_strWord;
  std::erase_if(place, [](char c) { return c == '[' || c == ']'; });
  if (place == "GRADE") return Grades();
  if (place == "CLASS") return Words("S1 S2 S3 S4 S5", ' ');
  return place.find('|') == place.npos ? CValues() : Words(place, '|');
}

// The choices that a type tells: "INT:{0,90,180,270}".
CValues Choices(const std::string& type) {
  const std::size_t open = type.find('{');
  if (open == type.npos) return {};
  return Words(type.substr(open + 1, type.find('}') - open - 1), ',');
}

// The part of a list that is being typed, behind what is whole.
std::size_t ListHead(const std::string& begun, const char* separators) {
  const std::size_t at = begun.find_last_of(separators);
  return at == begun.npos ? 0 : at + 1;
}

CValues Find(const CTypedLine& line, const CLI::Option& option, const std::string& begun) {
  const std::string name = option.get_name();
  const std::string type = option.get_type_name();
  const auto list = [&begun](const char* separators) {
    return begun.substr(0, ListHead(begun, separators));
  };
  if (name == "FILE" || type.starts_with("FILE")) return {{"", "files"}};
  if (type == "DIR" || type == "FOLDER") return {{"", "folders"}};
  if (name == "TABLE" || name == "--table") return Behind(list(","), Tables(line));
  if (name == "NO") return Numbers(line);
  if (name == "STYLE") return Styles();
  if (name == "ARGUMENTS") return CodeArgument(line, option.get_description());
  if (type == "YEAR") {
    const bool both = line.m_pCommand->get_name() == "check";
    return Words(both ? "2017 2003 both" : "2017 2003", ' ');
  }
  if (type == "SIGN=VALUE") return Signs(line, "=");
  if (type == "EXPR") return Behind(list("&| "), Signs(line, ""));
  if (const std::size_t colon = begun.find(':'); type == "SIGN[:desc]" && colon != begun.npos)
    return Behind(begun.substr(0, colon + 1), Words("asc desc", ' '));
  if (type.starts_with("SIGN")) return Behind(list(","), Signs(line, ""));
  return Choices(type);
}

}  // namespace

CValues Behind(const std::string& head, CValues values) {
  for (CCandidate& value : values) {
    if (!value.m_strWord.empty()) value.m_strWord.insert(0, head);
  }
  return values;
}

// Where there is nothing to look up there is nothing to complete. A store that is to be made has
// the catalogue's tables and columns.
CValues ValuesOf(const CTypedLine& line, const CLI::Option& option, const std::string& begun) {
  try {
    return Find(line, option, begun);
  } catch (const std::exception&) {
    if (line.m_store.store.empty() || option.get_name() == "NO") return {};
  }
  CTypedLine shipped = line;
  shipped.m_store.store.clear();
  return ValuesOf(shipped, option, begun);
}

}  // namespace orv3::cli
