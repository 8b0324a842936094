#include <algorithm>
#include <cmath>
#include <deque>
#include <iterator>
#include <utility>

#include "cases/case_readers.h"
#include "framework/excerpt.h"
#include "input/json_fault.h"

namespace orv3::cli {
namespace {

// The bytes of a file as the parser asks for them.
class CJsonBytes {
 public:
  explicit CJsonBytes(CCaseBytes& bytes) : m_bytes(bytes) {}
  char Get() const noexcept { return m_strPiece[m_nAt]; }
  bool IsEnd() {
    while (m_nAt == m_strPiece.size()) {
      m_nCase += std::exchange(m_nAt, 0);
      m_strPiece.clear();
      if (m_nCase > kLongestCase) m_bytes.RefuseLongCase();
      if (!m_bytes.More(m_strPiece)) return m_strPiece.empty();
    }
    return false;
  }
  void Step() noexcept { ++m_nAt; }
  void StartCase() noexcept { m_nCase = 0; }

 private:
  CCaseBytes& m_bytes;
  std::string m_strPiece;
  std::size_t m_nAt = 0;
  std::size_t m_nCase = 0;  // bytes before the piece that belong to the case at hand
};

class CJsonIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = char;

  explicit CJsonIterator(CJsonBytes* bytes) : m_pBytes(bytes) {}  // null: the end
  char operator*() const noexcept { return m_pBytes->Get(); }
  CJsonIterator& operator++() noexcept {
    m_pBytes->Step();
    return *this;
  }
  // Compared with the end only.
  bool operator==(const CJsonIterator&) const { return m_pBytes->IsEnd(); }
  bool operator!=(const CJsonIterator& other) const { return !(*this == other); }

 private:
  CJsonBytes* m_pBytes;
};

// Takes what the parser finds, and hands every case over when its object ends.
class CJsonCases : public nlohmann::json_sax<CJson> {
 public:
  CJsonCases(CCaseBytes& file, CJsonBytes& bytes, const CCaseSchema& schema, const CTakeCase& take)
      : m_file(file),
        m_bytes(bytes),
        m_arrRule(schema.Rules()),
        m_schema(schema),
        m_take(take),
        m_nSpare(static_cast<int>(m_arrRule.size())),
        m_arrText(m_arrRule.size() + 1),
        m_arrList(m_arrRule.size() + 1) {
    StartCase();
  }

  // At the end of the text: a single case is handed over when nothing else was found.
  void Finish() {
    if (m_case.m_bSingle) HandOver();
  }

  bool null() override { return Other("null"); }
  bool boolean(bool value) override {
    if (m_nDepth != Field() || m_nKey == kNone || !Rule().m_bBoolean)
      return Other(value ? "true" : "false");
    Set(value ? 1.0 : 0.0);
    return true;
  }
  bool number_integer(number_integer_t value) override {
    return Number(static_cast<double>(value), std::to_string(value));
  }
  bool number_unsigned(number_unsigned_t value) override {
    return Number(static_cast<double>(value), std::to_string(value));
  }
  bool number_float(number_float_t value, const string_t& text) override {
    return Number(value, text);
  }
  bool string(string_t& text) override {
    if (m_nDepth != Field() || m_nKey == kNone) return Other('"' + Excerpt(text) + '"');
    SetText(text);
    return true;
  }
  bool binary(binary_t&) override { return true; }  // only other formats have it

  bool start_object(std::size_t) override {
    if (m_nDepth == 0) m_case.m_bSingle = true;
    if (InParts() && m_nDepth == Field() + 1) {
      StartPart();
    } else if (InObjects()) {
      StartMember();
    } else if (m_nDepth == Field() && m_bObjectNext) {
      ++m_nObjects;
      m_strObject = m_strNext + '.';
    } else if (m_nDepth >= Field()) {
      Other("{…}");
    }
    m_bObjectNext = false;
    ++m_nDepth;
    return true;
  }
  bool key(string_t& key) override {
    if (m_nDepth == Field()) FindKey(key);
    if (m_bMember && m_nDepth == Field() + 2) FindMember(key);
    return true;
  }
  bool end_object() override {
    if (m_bInPart && m_nDepth == Field()) return EndPart();
    if (m_bMember && m_nDepth == Field() + 2) EndMember();
    return End();
  }
  bool start_array(std::size_t) override {
    if (m_nDepth == Field() && m_nKey != kNone) {
      if (m_bInPart || Rule().m_arrPartKey.empty()) {
        m_bList = true;
        StartList();
      } else {
        m_nParts = m_nKey;
        m_case.m_arrPart.clear();
      }
    } else if (m_nDepth > 0) {
      Other("[…]");
    }
    ++m_nDepth;
    return true;
  }
  bool end_array() override {
    if (m_nDepth == Field() + 1 && m_bList) EndList();
    if (m_nDepth == Field() + 1 && InParts()) EndParts();
    return End();
  }

  bool parse_error(std::size_t, const std::string& token,
                   const nlohmann::detail::exception& error) override {
    m_file.Refuse(JsonFault(token, error));
  }

 private:
  static constexpr int kNone = -1;

  // How many brackets are open where the keys of a case, or of the object within it, stand.
  int Field() const noexcept {
    return (m_case.m_bSingle ? 1 : 2) + m_nObjects + (m_bInPart ? 2 : 0);
  }
  std::vector<double>& List() {
    return m_bInPart ? m_arrPartList.back() : m_arrList[static_cast<std::size_t>(m_nKey)];
  }
  void StartList() {
    if (m_bInPart) m_arrPartList.emplace_back();
    List().clear();
  }
  CCaseValues& Values() { return m_bInPart ? m_case.m_arrPart.back() : m_case.m_arrValue; }
  const CCaseSchema::CRule& Rule() const {
    return m_arrRule[static_cast<std::size_t>(m_nKey == m_nSpare ? m_nTwice : m_nKey)];
  }

  void StartCase() {
    m_case.m_arrValue.assign(m_arrRule.size() + 1, std::nullopt);
    m_case.m_fault.reset();
    m_nKey = kNone;
    m_nObjects = 0;
    m_strObject.clear();
    m_bObjectNext = m_bInPart = false;
    m_nParts = kNone;
    m_case.m_arrPart.clear();
    m_arrPartText.clear();
    m_arrPartList.clear();
    m_bytes.StartCase();
  }

  void HandOver() {
    m_case.m_arrValue.pop_back();
    for (CCaseValues& part : m_case.m_arrPart) part.pop_back();
    m_case.m_dDone = m_file.Done();
    m_take(m_case);
    StartCase();
  }

  void Fault(CCaseFault fault) {
    if (!m_case.m_fault) m_case.m_fault = std::move(fault);
  }

  void FindKey(const std::string& name) {
    if (m_bInPart) return FindPartKey(name);
    const std::string key = m_strObject + name;
    m_bObjectNext = m_schema.IsObject(key);
    if (m_bObjectNext) {
      m_strNext = key;
      m_nKey = kNone;
      return;
    }
    m_nKey = m_schema.Find(key);
    if (m_nKey == kNone) return Fault(m_schema.Unknown(key));
    Spare();
  }

  void FindPartKey(const std::string& name) {
    const auto& parts = m_arrRule[static_cast<std::size_t>(m_nParts)];
    const auto& keys = parts.m_arrPartKey;
    m_nKey = m_schema.Find(name);
    if (std::find(keys.begin(), keys.end(), m_nKey) != keys.end()) return Spare();
    m_nKey = kNone;
    Fault(m_schema.Unknown(name, parts));
  }

  // The second value of a key is kept apart.
  void Spare() {
    if (Values()[static_cast<std::size_t>(m_nKey)]) m_nTwice = std::exchange(m_nKey, m_nSpare);
  }

  // Among the parts of a case, and not in one of them.
  bool InParts() const noexcept { return m_nParts != kNone && !m_bInPart; }

  void EndParts() {
    m_nParts = kNone;
    Set(std::span<const double>());
  }

  void StartPart() {
    m_case.m_arrPart.emplace_back(m_arrRule.size() + 1);
    m_bInPart = true;
    m_nKey = kNone;
  }

  bool EndPart() {
    m_bInPart = false;
    m_nKey = m_nParts;
    --m_nDepth;
    return true;
  }

  bool Number(double value, const std::string& text) {
    if (m_nDepth == Field() && m_nKey != kNone && !Rule().m_bBoolean) {
      if (Rule().m_bText && Rule().m_bNumber) {
        SetText(text);
      } else {
        Set(value);
      }
      return true;
    }
    if (m_bList && m_nDepth == Field() + 1 && Rule().m_arrMember.empty()) {
      List().push_back(value);
      return true;
    }
    if (m_bMember && m_nDepth == Field() + 2) {
      SetMember(value);
      return true;
    }
    return Other(Excerpt(text));
  }

  void SetText(const std::string& text) {
    std::string& kept =
        m_bInPart ? m_arrPartText.emplace_back() : m_arrText[static_cast<std::size_t>(m_nKey)];
    kept = text;
    Set(std::string_view(kept));
  }

  void EndList() {
    m_bList = false;
    Set(std::span<const double>(List()));
  }

  // The value of the key at hand; the second one of a key is a fault that names both.
  void Set(const CKeyValue& value) {
    auto& kept = Values()[static_cast<std::size_t>(m_nKey)];
    kept = value;
    if (m_nKey == m_nSpare) {
      Fault(Twice(Rule().m_strKey, *Values()[static_cast<std::size_t>(m_nTwice)], value));
      kept.reset();
    }
    m_nKey = kNone;
  }

  static CCaseFault Twice(const std::string& key, const CKeyValue& first, const CKeyValue& second) {
    const std::string a = ValueText(first);
    const std::string b = ValueText(second);
    return {key,
            {"出现两次，值为 " + a + " 和 " + b, "stands twice, with " + a + " and with " + b},
            {"请只给一次", "give it once"}};
  }

  // What stands where it cannot: no object as a case, or a value that no key takes.
  bool Other(const std::string& text) {
    if (std::exchange(m_bObjectNext, false)) {
      Fault({m_strNext,
             {text + " 不可用", text + " is not possible"},
             {"请给出花括号内的键", "give its keys in braces"}});
      return true;
    }
    if (m_nDepth == 0) {
      m_file.Refuse({"没有算例；请给出一个对象或对象的数组",
                     "holds no case; give an object, or an array of them"});
    }
    if (m_nDepth < Field()) {
      Fault({"case",
             {text + " 不是对象", text + " is no object"},
             {"请把一个算例的键写在花括号内", "give the keys of one case in braces"}});
      if (text != "[…]") HandOver();
    } else if (m_nDepth == Field() && m_nKey != kNone) {
      Fault({Rule().m_strKey, {text + " 不可用", text + " is not possible"}, Rule().Right()});
      m_nKey = kNone;
    } else if (m_nDepth > Field() && (m_bList || InParts())) {
      Fault({Rule().m_strKey,
             {"数列中不能有 " + text, text + " is not possible in a list"},
             Rule().Right()});
    }
    return true;
  }

  // Whether the next object is one of a key's list.
  bool InObjects() const {
    return m_bList && m_nDepth == Field() + 1 && !Rule().m_arrMember.empty();
  }

  void StartMember() {
    m_bMember = true;
    m_nMember = kNone;
    List().insert(List().end(), Rule().m_arrMember.size(), NAN);
  }

  void FindMember(const std::string& key) {
    const auto& members = Rule().m_arrMember;
    const auto at = std::find(members.begin(), members.end(), key);
    m_nMember = at == members.end() ? kNone : static_cast<int>(at - members.begin());
    if (m_nMember == kNone) {
      const std::string name = Excerpt(key);
      Fault({Rule().m_strKey, {name + " 不是此处的键", name + " is no key here"}, Rule().Right()});
    }
  }

  void SetMember(double value) {
    if (m_nMember == kNone) return;
    const std::size_t count = Rule().m_arrMember.size();
    double& cell = List()[List().size() - count + static_cast<std::size_t>(m_nMember)];
    if (!std::isnan(cell)) {
      const std::string& name = Rule().m_arrMember[static_cast<std::size_t>(m_nMember)];
      Fault({Rule().m_strKey,
             {name + " 出现两次", name + " stands twice"},
             {"请只给一次", "give it once"}});
    }
    cell = value;
  }

  void EndMember() {
    m_bMember = false;
    const std::size_t count = Rule().m_arrMember.size();
    for (std::size_t i = 0; i < count; ++i) {
      if (!std::isnan(List()[List().size() - count + i])) continue;
      const std::string which = std::to_string(List().size() / count);
      const std::string& name = Rule().m_arrMember[i];
      return Fault({Rule().m_strKey,
                    {"第 " + which + " 个缺 " + name, name + " of number " + which + " is missing"},
                    Rule().Right()});
    }
  }

  bool End() {
    if (--m_nDepth != Field() - 1) return true;
    if (m_nObjects > 0) {
      --m_nObjects;
      m_strObject.pop_back();
      m_strObject.erase(m_strObject.rfind('.') + 1);  // of npos: all of it
      m_nKey = kNone;
    } else if (m_nDepth > 0) {
      HandOver();
    }
    return true;
  }

  CCaseBytes& m_file;
  CJsonBytes& m_bytes;
  const std::vector<CCaseSchema::CRule>& m_arrRule;
  const CCaseSchema& m_schema;
  const CTakeCase& m_take;
  const int m_nSpare;  // place behind the keys for the second value of one
  CReadCase m_case;
  int m_nDepth = 0;      // open brackets
  int m_nKey = kNone;    // whose value comes next
  int m_nTwice = kNone;  // the key whose second value goes to the spare place
  bool m_bList = false;
  bool m_bMember = false;              // within an object of a key's list
  int m_nMember = kNone;               // whose number comes next
  int m_nObjects = 0;                  // objects within the case whose keys are read
  std::string m_strObject;             // before the keys of the innermost: "section.lattice."
  bool m_bObjectNext = false;          // the value of an object comes next
  std::string m_strNext;               // its key
  std::vector<std::string> m_arrText;  // what the values point to, by key
  std::vector<std::vector<double>> m_arrList;
  int m_nParts = kNone;    // the key whose parts are read
  bool m_bInPart = false;  // within one of them
  std::deque<std::string> m_arrPartText;
  std::deque<std::vector<double>> m_arrPartList;
};

}  // namespace

void ReadJsonCases(CCaseBytes& file, const CCaseSchema& schema, const CTakeCase& take) {
  CJsonBytes bytes(file);
  CJsonCases cases(file, bytes, schema, take);
  CJson::sax_parse(CJsonIterator(&bytes), CJsonIterator(nullptr), &cases);
  cases.Finish();
}

}  // namespace orv3::cli
