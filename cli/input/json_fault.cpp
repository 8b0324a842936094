#include "input/json_fault.h"

#include <string_view>

#include "framework/excerpt.h"

namespace orv3::cli {
namespace {

// The number behind a word of "parse error at line 1, column 2: ..."; empty where it has none.
std::string NumberBehind(std::string_view what, std::string_view word) {
  const std::size_t at = what.find(word);
  if (at == what.npos) return {};
  what.remove_prefix(at + word.size());
  return std::string(what.substr(0, what.find_first_not_of("0123456789")));
}

}  // namespace

CText JsonFault(const std::string& token, const std::exception& error) {
  const std::string read = Excerpt(token);
  // Of a number over 1.8e308.
  if (std::string_view(error.what()).find("out_of_range") != std::string_view::npos)
    return {"其中数值“" + read + "”过大",
            "holds \"" + read + "\", which is too large for a number"};
  const std::string line = NumberBehind(error.what(), "line ");
  const std::string column = NumberBehind(error.what(), ", column ");
  CText fault = {"不是 JSON：有语法错误", "is no JSON, it has an error of syntax"};
  if (!line.empty() && !column.empty()) {
    fault = {"不是 JSON：第 " + line + " 行第 " + column + " 列有语法错误",
             "is no JSON, it has an error of syntax at line " + line + ", column " + column};
  }
  if (read.empty()) return fault;
  return {fault.m_strChinese + "，最后读到“" + read + "”",
          fault.m_strEnglish + "; the last that was read is \"" + read + "\""};
}

}  // namespace orv3::cli
