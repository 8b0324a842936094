#include "input/json_fault.h"

#include "framework/excerpt.h"

namespace orv3::cli {
namespace {

// Of "parse error at line 1, column 2: ..." what other languages can say.
std::string Place(const std::string& what) {
  const std::size_t line = what.find("line "), column = what.find(", column ");
  if (line == what.npos || column == what.npos) return {};
  const auto number = [&](std::size_t at) {
    return what.substr(at, what.find_first_not_of("0123456789", at) - at);
  };
  return "第 " + number(line + 5) + " 行第 " + number(column + 9) + " 列";
}

}  // namespace

CText JsonFault(const std::string& token, const std::exception& error) {
  std::string what = error.what();
  const std::size_t text = what.find("] ");  // behind the library's number of the error
  if (text != what.npos) what.erase(0, text + 2);
  const std::size_t quoted = what.find(token);
  if (!token.empty() && quoted != what.npos) what.replace(quoted, token.size(), Excerpt(token));
  const std::string read = token.empty() ? "" : "，最后读到“" + Excerpt(token) + "”";
  return {"不是 JSON：" + Place(what) + "有语法错误" + read, "is no JSON, " + what};
}

}  // namespace orv3::cli
