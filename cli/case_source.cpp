#include "case_source.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "error.h"
#include "framework/csv.h"
#include "framework/utf8.h"
#include "platform/whole_file.h"

namespace orv3::cli {
namespace {

[[noreturn]] void Bad(const std::string& text) { throw CCommandError(CExit::BadInput, text); }

std::string ReadFile(const std::string& path) {
  std::string bytes;
  const CFileError error = ReadWholeFile(FromUtf8(path), bytes);
  if (error == CFileError::NotFound) {
    throw CCommandError(CExit::FileTrouble, path + ": is not there; give a file of cases");
  }
  if (error != CFileError::None) {
    throw CCommandError(CExit::FileTrouble, path + ": cannot be read; give a file of cases");
  }
  return bytes;
}

// --- JSON --------------------------------------------------------------------------------------

// An array, its cases and their lists are three levels; a fault quotes a value with what lies in
// it.
constexpr int kDeepest = 16;

// Goes through the whole text without keeping anything of it.
void CheckJson(const std::string& bytes, const std::string& path) {
  try {
    const CJson nothing = CJson::parse(bytes, [&](int depth, CJson::parse_event_t, CJson&) {
      if (depth > kDeepest) Bad(path + ": is nested too deep; give a case, or an array of them");
      return false;
    });
  } catch (const CJson::exception& error) {
    const std::string what = error.what();
    const std::size_t text = what.find("] ");
    Bad(path + ": is no JSON, " + (text == std::string::npos ? what : what.substr(text + 2)));
  }
}

// Keeps one case at a time of a text that CheckJson has passed.
class CJsonSource : public CCaseSource {
 public:
  CJsonSource(std::string bytes, const std::string& path, const CCaseSchema& schema)
      : m_strBytes(std::move(bytes)), m_schema(schema) {
    CheckJson(m_strBytes, path);
    m_nAt = m_strBytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    m_nAt = m_strBytes.find_first_not_of(kSpace, m_nAt);
    m_bSingle = m_strBytes[m_nAt] == '{';
    if (!m_bSingle && m_strBytes[m_nAt] != '[')
      Bad(path + ": holds no case; give an object, or an array of them");
    if (!m_bSingle) ++m_nAt;
  }

  bool IsSingle() const noexcept override { return m_bSingle; }
  double Done() const noexcept override {
    return static_cast<double>(m_nAt) / static_cast<double>(m_strBytes.size());
  }

  bool Next(CCaseValues& values, std::optional<CCaseFault>& fault) override {
    m_nAt = std::min(m_strBytes.find_first_not_of(kBetween, m_nAt), m_strBytes.size());
    if (m_nAt == m_strBytes.size() || m_strBytes[m_nAt] == ']') return false;
    const std::size_t from = std::exchange(m_nAt, EndOfValue(m_nAt));
    m_case = CJson::parse(m_strBytes.begin() + static_cast<std::ptrdiff_t>(from),
                          m_strBytes.begin() + static_cast<std::ptrdiff_t>(m_nAt));
    Read(m_case, values, fault);
    return true;
  }

 private:
  static constexpr const char* kSpace = " \t\r\n";
  static constexpr const char* kBetween = " \t\r\n,";

  // Behind the value that starts at `at`: where its own brackets are closed, or where those around
  // it go on.
  std::size_t EndOfValue(std::size_t at) const {
    int open = 0;
    for (; at < m_strBytes.size(); ++at) {
      const char ch = m_strBytes[at];
      if (open == 0 && (ch == ',' || ch == ']')) break;
      if (ch == '{' || ch == '[') ++open;
      if (ch == '}' || ch == ']') --open;
      if (ch == '"') at = EndOfText(at);
    }
    return at;
  }

  // The quotation mark that ends the text whose first one is at `at`.
  std::size_t EndOfText(std::size_t at) const {
    while (m_strBytes[++at] != '"') at += m_strBytes[at] == '\\' ? 1 : 0;
    return at;
  }

  void Read(const CJson& object, CCaseValues& values, std::optional<CCaseFault>& fault) {
    if (!object.is_object()) {
      fault = CCaseFault{"case", "is no object", "give the keys of one case in braces"};
      return;
    }
    m_arrNumber.clear();
    m_arrNumber.reserve(CountNumbers(object));
    for (const auto& entry : object.items()) {
      const int key = m_schema.Find(entry.key());
      if (key < 0) {
        fault = m_schema.Unknown(entry.key());
        return;
      }
      if (!ReadValue(entry.value(), values[static_cast<std::size_t>(key)])) {
        fault = CCaseFault{entry.key(), entry.value().dump() + " is not possible",
                           m_schema.Rules()[static_cast<std::size_t>(key)].Right()};
        return;
      }
    }
  }

  static std::size_t CountNumbers(const CJson& object) {
    std::size_t count = 0;
    for (const CJson& value : object) count += value.is_array() ? value.size() : 0;
    return count;
  }

  bool ReadValue(const CJson& json, std::optional<CKeyValue>& value) {
    if (json.is_number()) {
      value = json.get<double>();
    } else if (json.is_string()) {
      value = std::string_view(json.get_ref<const std::string&>());
    } else if (json.is_array()) {
      const std::size_t first = m_arrNumber.size();
      for (const CJson& each : json) {
        if (!each.is_number()) return false;
        m_arrNumber.push_back(each.get<double>());
      }
      value = std::span<const double>(m_arrNumber).subspan(first);
    } else {
      return false;
    }
    return true;
  }

  const std::string m_strBytes;
  const CCaseSchema& m_schema;
  bool m_bSingle = false;
  std::size_t m_nAt = 0;  // what lies before has been read
  CJson m_case;
  std::vector<double> m_arrNumber;  // of the lists of the case at hand
};

// --- CSV ---------------------------------------------------------------------------------------

class CCsvSource : public CCaseSource {
 public:
  CCsvSource(std::string bytes, const std::string& path, const CCaseSchema& schema)
      : m_csv(std::move(bytes)), m_schema(schema) {
    if (!m_csv.Next(m_arrCell)) Bad(path + ": is empty; the first line holds the keys");
    for (const std::string_view name : m_arrCell) {
      m_arrColumn.push_back(schema.Find(name));
      if (m_arrColumn.back() < 0) Bad(path + ": " + schema.Unknown(name).Line());
      if (std::count(m_arrColumn.begin(), m_arrColumn.end(), m_arrColumn.back()) > 1)
        Bad(path + ": " + std::string(name) + ": stands twice in the first line; give it once");
    }
  }

  double Done() const noexcept override { return m_csv.Done(); }

  bool Next(CCaseValues& values, std::optional<CCaseFault>& fault) override {
    do {
      if (!m_csv.Next(m_arrCell)) return TellMalformed(fault);
    } while (m_arrCell.size() == 1 && m_arrCell[0].empty());
    if (m_arrCell.size() > m_arrColumn.size()) {
      fault = CCaseFault{"case", "has more cells than the first line has keys", "give one a key"};
      return true;
    }
    m_arrNumber.clear();
    m_arrNumber.reserve(CountNumbers());
    for (std::size_t i = 0; i < m_arrCell.size(); ++i) {
      const auto key = static_cast<std::size_t>(m_arrColumn[i]);
      if (!m_arrCell[i].empty()) values[key] = Value(m_arrCell[i], m_schema.Rules()[key]);
    }
    return true;
  }

 private:
  // The text is not read beyond a malformed cell, which is a refused case of its own.
  bool TellMalformed(std::optional<CCaseFault>& fault) {
    if (!m_csv.IsMalformed() || std::exchange(m_bTold, true)) return false;
    fault = CCaseFault{"line " + std::to_string(m_csv.Line()),
                       "has a cell in quotation marks that is not closed or goes on behind them",
                       "close it before the separator, and double the marks within it"};
    return true;
  }

  std::size_t CountNumbers() const {
    std::size_t count = m_arrCell.size();
    for (const std::string_view cell : m_arrCell)
      count += static_cast<std::size_t>(std::count(cell.begin(), cell.end(), ';'));
    return count;
  }

  static bool ReadNumber(std::string_view text, double& number) noexcept {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
  }

  // A text where the key takes one, a list where semicolons stand, else a number; what is none of
  // them stays a text, which the schema then refuses.
  CKeyValue Value(std::string_view cell, const CCaseSchema::CRule& rule) {
    double number = 0;
    if (rule.m_bText) return cell;
    if (!rule.m_bArray || cell.find(';') == std::string_view::npos) {
      if (ReadNumber(cell, number)) return number;
      return cell;
    }
    const std::size_t first = m_arrNumber.size();
    for (std::size_t at = 0; at <= cell.size();) {
      const std::size_t end = std::min(cell.find(';', at), cell.size());
      if (!ReadNumber(cell.substr(at, end - at), number)) return cell;
      m_arrNumber.push_back(number);
      at = end + 1;
    }
    return std::span<const double>(m_arrNumber).subspan(first);
  }

  CCsvReader m_csv;
  bool m_bTold = false;  // of a malformed cell
  const CCaseSchema& m_schema;
  std::vector<std::string_view> m_arrCell;
  std::vector<int> m_arrColumn;     // position of each column's key
  std::vector<double> m_arrNumber;  // of the lists of the case at hand
};

}  // namespace

std::unique_ptr<CCaseSource> OpenCases(const std::string& path, const CCaseSchema& schema) {
  std::string bytes = ReadFile(path);
  if (!IsUtf8(bytes)) Bad(path + ": is no UTF-8; save it as UTF-8");
  if (path.ends_with(".csv") || path.ends_with(".CSV"))
    return std::make_unique<CCsvSource>(std::move(bytes), path, schema);
  return std::make_unique<CJsonSource>(std::move(bytes), path, schema);
}

}  // namespace orv3::cli
