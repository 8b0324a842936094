#include "options/nearest.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "framework/language.h"
#include "framework/utf8.h"

namespace orv3::cli {
namespace {

constexpr std::size_t kAnswers = 3;

std::wstring Small(std::wstring_view text) {
  std::wstring small(text);
  for (wchar_t& ch : small) ch = ch >= L'A' && ch <= L'Z' ? static_cast<wchar_t>(ch + 32) : ch;
  return small;
}

// The least number of characters to change, put in or take out (Levenshtein), row by row.
std::size_t Changes(std::wstring_view from, std::wstring_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), 0U);
  for (std::size_t i = 1; i <= from.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= to.size(); ++j) {
      const std::size_t change = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
      diagonal = std::exchange(row[j], std::min({change, row[j] + 1, row[j - 1] + 1}));
    }
  }
  return row.back();
}

// Less is nearer. A column's unit, as in "h(mm)", need not have been given.
std::size_t Distance(std::wstring_view wrong, const std::wstring& name) {
  const std::wstring_view stem = std::wstring_view(name).substr(0, name.find(L'('));
  const bool part =
      name.find(wrong) != std::wstring::npos || wrong.find(name) != std::wstring_view::npos;
  return std::min(Changes(wrong, name), Changes(wrong, stem)) +
         (part && !wrong.empty() && !name.empty() ? 0 : 1000);
}

}  // namespace

std::string Nearest(std::string_view wrong, std::span<const CString> names) {
  const std::wstring wanted = Small(FromUtf8(wrong));
  std::vector<std::pair<std::size_t, std::size_t>> found;
  for (std::size_t i = 0; i < names.size(); ++i) {
    found.emplace_back(Distance(wanted, Small(names[i])), i);
  }
  std::sort(found.begin(), found.end());
  std::string list;
  for (std::size_t i = 0; i < std::min(found.size(), kAnswers); ++i) {
    list += (i == 0 ? "" : Say("、", ", ")) + ToUtf8(names[found[i].second]);
  }
  return list;
}

}  // namespace orv3::cli
