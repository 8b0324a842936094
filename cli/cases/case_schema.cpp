#include "cases/case_schema.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "framework/excerpt.h"
#include "framework/number_chars.h"
#include "framework/plain_number.h"

namespace orv3::cli {
namespace {

// What was given, so that 1.0000001 is not taken for 1.
std::string AllDigits(double value) {
  char digits[32];
  return std::string(digits, WriteShortest(digits, digits + sizeof digits, value));
}

[[noreturn]] void Outside(const std::string& what) {
  throw std::invalid_argument("schema: " + what + " is not understood");
}

void ReadRange(const CJson& json, CCaseSchema::CRange& range) {
  const auto read = [&](const char* name, std::optional<double>& bound) {
    if (json.contains(name)) bound = json.at(name).get<double>();
  };
  read("minimum", range.m_minimum);
  read("exclusiveMinimum", range.m_above);
  read("maximum", range.m_maximum);
  read("exclusiveMaximum", range.m_below);
}

void ReadType(const std::string& type, CCaseSchema::CRule& rule) {
  if (type == "number" || type == "integer") {
    rule.m_bNumber = true;
    rule.m_bInteger = type == "integer";
  } else if (type == "string") {
    rule.m_bText = true;
  } else if (type == "array") {
    rule.m_bArray = true;
  } else if (type == "boolean") {
    rule.m_bBoolean = true;
  } else {
    Outside("type " + type);
  }
}

void ReadItems(const CJson& items, CCaseSchema::CRule& rule) {
  if (items.at("type") != "object") return ReadRange(items, rule.m_items);
  if (items.at("additionalProperties") != false) Outside(rule.m_strKey + ": open objects");
  if (!items.contains("required")) return;  // parts, whose keys are those of the case
  for (const auto& entry : items.at("properties").items()) {
    if (entry.value().at("type") != "number") Outside(rule.m_strKey + ": " + entry.key());
    rule.m_arrMember.push_back(entry.key());
    ReadRange(entry.value(), rule.m_arrMemberRange.emplace_back());
  }
  if (items.at("required").size() != rule.m_arrMember.size())
    Outside(rule.m_strKey + ": objects that are not closed");
}

CCaseSchema::CRule ReadRule(const std::string& key, const CJson& json) {
  static constexpr const char* kWords[] = {
      "description",      "type",    "enum", "items", "minimum", "exclusiveMinimum", "maximum",
      "exclusiveMaximum", "minItems"};
  for (const auto& entry : json.items()) {
    if (std::find(std::begin(kWords), std::end(kWords), entry.key()) == std::end(kWords))
      Outside(key + ": " + entry.key());
  }
  CCaseSchema::CRule rule;
  rule.m_strKey = key;
  if (json.contains("type")) {
    const CJson& type = json["type"];
    for (const CJson& each : type.is_array() ? type : CJson::array({type}))
      ReadType(each.get<std::string>(), rule);
  }
  for (const CJson& value : json.value("enum", CJson::array())) {
    rule.m_bText = rule.m_bText || value.is_string();
    rule.m_bNumber = rule.m_bNumber || value.is_number();
    if (value.is_string()) rule.m_arrText.push_back(value.get<std::string>());
    if (value.is_number()) rule.m_arrNumber.push_back(value.get<double>());
  }
  // Which of a list of typed numbers are right the check says, by the other keys.
  rule.m_bListed = !rule.m_arrNumber.empty() && !json.contains("type");
  ReadRange(json, rule.m_range);
  rule.m_nLeastItems = json.value("minItems", std::size_t{0});
  if (json.contains("items")) ReadItems(json["items"], rule);
  return rule;
}

bool Within(double value, const CCaseSchema::CRange& range) noexcept {
  return std::isfinite(value) && !(range.m_minimum && value < *range.m_minimum) &&
         !(range.m_above && value <= *range.m_above) &&
         !(range.m_maximum && value > *range.m_maximum) &&
         !(range.m_below && value >= *range.m_below);
}

void Append(CText& text, const CText& more) {
  text.m_strChinese += more.m_strChinese;
  text.m_strEnglish += more.m_strEnglish;
}

// A further item of a list.
CText Next(const CText& list, const CText& item) {
  if (list.m_strEnglish.empty()) return item;
  return {"、" + item.m_strChinese, ", " + item.m_strEnglish};
}

CText RangeWords(const CCaseSchema::CRange& range) {
  CText words;
  const auto add = [&](CTextLiteral word, const std::optional<double>& bound) {
    if (!bound) return;
    const bool bFirst = words.m_strEnglish.empty();
    const std::string number = PlainNumber(*bound);
    Append(words, {(bFirst ? "，" : " 且") + std::string(word.m_szChinese) + number,
                   (bFirst ? " " : ", ") + std::string(word.m_szEnglish) + number});
  };
  add({"不小于 ", "of at least "}, range.m_minimum);
  add({"大于 ", "above "}, range.m_above);
  add({"不大于 ", "at most "}, range.m_maximum);
  add({"小于 ", "below "}, range.m_below);
  return words;
}

template <class VALUE>
bool Among(const std::vector<VALUE>& allowed, const auto& value) noexcept {
  return allowed.empty() || std::find(allowed.begin(), allowed.end(), value) != allowed.end();
}

CText NotPossible(const CKeyValue& value) {
  const std::string text = ValueText(value);
  if (const auto* given = std::get_if<std::string_view>(&value))
    return {"“" + Excerpt(*given) + "”不可用", text + " is not possible"};
  return {text + " 不可用", text + " is not possible"};
}

// What is wrong with a value by itself.
std::optional<CText> Wrong(const CCaseSchema::CRule& rule, const CKeyValue& value) {
  if (const auto* text = std::get_if<std::string_view>(&value)) {
    if (rule.m_bText && Among(rule.m_arrText, *text)) return std::nullopt;
    return NotPossible(value);
  }
  if (const auto* number = std::get_if<double>(&value)) {
    if (rule.m_bBoolean && (*number == 0 || *number == 1)) return std::nullopt;
    const bool bKind = rule.m_bNumber && !(rule.m_bInteger && *number != std::floor(*number));
    const bool bListed = !rule.m_bListed || Among(rule.m_arrNumber, *number);
    if (bKind && Within(*number, rule.m_range) && bListed) return std::nullopt;
    return NotPossible(value);
  }
  if (!rule.m_bArray) return CText{"不能给数列", "a list is not possible"};
  const auto list = std::get<std::span<const double>>(value);
  if (list.size() < rule.m_nLeastItems) return CText{"是空数列", "is an empty list"};
  const std::size_t members = rule.m_arrMember.size();
  if (members != 0 && (list.empty() || list.size() % members != 0)) {
    const std::string count = std::to_string(list.size());
    return CText{"有 " + count + " 个数", count + " numbers are given"};
  }
  for (std::size_t i = 0; i < list.size(); ++i) {
    const double each = list[i];
    if (Within(each, members == 0 ? rule.m_items : rule.m_arrMemberRange[i % members])) continue;
    const std::string name = members == 0 ? "" : rule.m_arrMember[i % members] + " = ";
    return CText{"数列中的 " + name + AllDigits(each) + " 不可用",
                 name + AllDigits(each) + " in the list is not possible"};
  }
  return std::nullopt;
}

}  // namespace

std::string ValueText(const CKeyValue& value) {
  if (const auto* text = std::get_if<std::string_view>(&value)) return '"' + Excerpt(*text) + '"';
  if (const auto* number = std::get_if<double>(&value)) return AllDigits(*number);
  std::string list;
  for (const double each : std::get<std::span<const double>>(value)) {
    list += (list.empty() ? "" : ", ") + AllDigits(each);
    if (list.size() > 60) break;
  }
  return "[" + Excerpt(list) + "]";
}

CText CCaseSchema::CRule::Right() const {
  CText right;
  for (const std::string& text : m_arrText)
    Append(right, Next(right, {"“" + text + "”", '"' + text + '"'}));
  for (const double each : m_arrNumber) {
    const std::string number = PlainNumber(each);
    const bool bAsText = std::find(m_arrText.begin(), m_arrText.end(), number) != m_arrText.end();
    if (!bAsText) Append(right, Next(right, {number, number}));
  }
  if (!right.m_strEnglish.empty())
    return {"请给出下列之一：" + right.m_strChinese, "give one of " + right.m_strEnglish};
  if (m_bText) return {"请给出文字", "give a text"};
  if (!m_arrPartKey.empty()) return {"请给出对象的数组", "give an array of objects"};
  if (!m_arrMember.empty()) {
    CText members;
    for (const std::string& member : m_arrMember) Append(members, Next(members, {member, member}));
    return {"请给出对象的数组，每个含 " + members.m_strChinese,
            "give an array of objects, each with " + members.m_strEnglish};
  }
  if (m_bBoolean) return {"请给出 true 或 false", "give true or false"};
  CText words = m_bInteger ? CText{"请给出整数", "give a whole number"}
                           : CText{"请给出数值", "give a number"};
  Append(words, RangeWords(m_range));
  if (m_bArray) Append(words, {"，或这样的数列", ", or a list of such"});
  return words;
}

CCaseSchema::CCaseSchema(std::string_view text) {
  const CJson json = CJson::parse(text);
  for (const auto& entry : json.items()) {
    static constexpr const char* kWords[] = {
        "$schema", "title", "description", "type", "properties", "required", "additionalProperties",
        "oneOf",   "allOf"};
    if (std::find(std::begin(kWords), std::end(kWords), entry.key()) == std::end(kWords))
      Outside(entry.key());
  }
  if (json.at("type") != "object" || json.at("additionalProperties") != false)
    Outside("a schema of anything but one closed object");
  for (const auto& entry : json.at("properties").items()) {
    if (entry.value().value("type", CJson()) == "object") {
      AddObject(entry.key(), entry.value());
    } else {
      m_arrRule.push_back(ReadRule(entry.key(), entry.value()));
    }
  }
  AddPartKeys(json["properties"]);
  CNeed always;
  always.m_arrKey = Positions(json.at("required"));
  m_arrNeed.push_back(always);
  for (const CJson& each : json.value("allOf", CJson::array()))
    m_arrNeed.push_back(Condition(each));
  for (const CJson& each : json.value("oneOf", CJson::array()))
    m_arrAlternative.push_back(Positions(each.at("required")));
}

void CCaseSchema::AddObject(const std::string& key, const CJson& json) {
  for (const auto& entry : json.items()) {
    static constexpr const char* kWords[] = {"description", "type", "properties",
                                             "additionalProperties"};
    if (std::find(std::begin(kWords), std::end(kWords), entry.key()) == std::end(kWords))
      Outside(key + ": " + entry.key());
  }
  if (json.at("additionalProperties") != false) Outside(key + ": an open object");
  m_arrObject.push_back(key);
  for (const auto& entry : json.at("properties").items()) {
    const std::string name = key + "." + entry.key();
    if (entry.value().value("type", CJson()) == "object") {
      AddObject(name, entry.value());
    } else {
      m_arrRule.push_back(ReadRule(name, entry.value()));
    }
  }
}

// A part's keys mean what they mean outside.
void CCaseSchema::AddPartKeys(const CJson& properties) {
  for (CRule& rule : m_arrRule) {
    if (!rule.m_bArray || rule.m_bNumber || !rule.m_arrMember.empty()) continue;
    const CJson& keys = properties.at(rule.m_strKey).at("items").at("properties");
    for (const auto& entry : keys.items()) {
      if (Find(entry.key()) < 0 || entry.value() != properties.at(entry.key()))
        Outside(rule.m_strKey + ": the key " + entry.key());
      rule.m_arrPartKey.push_back(Find(entry.key()));
    }
  }
}

bool CCaseSchema::IsObject(std::string_view key) const noexcept {
  return std::find(m_arrObject.begin(), m_arrObject.end(), key) != m_arrObject.end();
}

std::vector<int> CCaseSchema::Positions(const CJson& keys) const {
  std::vector<int> positions;
  for (const CJson& key : keys) {
    positions.push_back(Find(key.get<std::string>()));
    if (positions.back() < 0) Outside("the required key " + key.get<std::string>());
  }
  return positions;
}

CCaseSchema::CNeed CCaseSchema::Condition(const CJson& json) const {
  const CJson& condition = json.at("if").at("properties");
  if (condition.size() != 1) Outside("a condition on several keys");
  CNeed need;
  need.m_nIf = Find(condition.begin().key());
  const CJson& rule = condition.begin().value();
  if (rule.contains("const")) {
    need.m_strConst = rule["const"].get<std::string>();
  } else {
    need.m_minimum = rule.at("minimum").get<double>();
  }
  const CJson& then = json.at("then");
  need.m_arrKey = Positions(then.at("required"));
  CJson never = CJson::array();
  const CJson barred = then.value("properties", CJson::object());
  for (const auto& entry : barred.items()) {
    if (entry.value() != false) Outside("a condition's rule for " + entry.key());
    never.push_back(entry.key());
  }
  need.m_arrNever = Positions(never);
  return need;
}

int CCaseSchema::Find(std::string_view key) const noexcept {
  for (std::size_t i = 0; i < m_arrRule.size(); ++i) {
    if (m_arrRule[i].m_strKey == key) return static_cast<int>(i);
  }
  return -1;
}

CCaseFault CCaseSchema::Unknown(std::string_view key) const {
  CText known;
  for (const CRule& rule : m_arrRule) Append(known, Next(known, {rule.m_strKey, rule.m_strKey}));
  return {Excerpt(key),
          {"不是此处的键", "is no key here"},
          {"可用的键为 " + known.m_strChinese, "the keys are " + known.m_strEnglish}};
}

CCaseFault CCaseSchema::Unknown(std::string_view key, const CRule& parts) const {
  CText known;
  for (const int at : parts.m_arrPartKey) {
    const std::string& name = m_arrRule[static_cast<std::size_t>(at)].m_strKey;
    Append(known, Next(known, {name, name}));
  }
  return {parts.m_strKey + '.' + Excerpt(key),
          {"不是此处的键", "is no key here"},
          {"可用的键为 " + known.m_strChinese, "the keys are " + known.m_strEnglish}};
}

bool CCaseSchema::Holds(const CNeed& need, const CCaseValues& values) const {
  if (need.m_nIf < 0) return true;
  const auto& value = values[static_cast<std::size_t>(need.m_nIf)];
  if (!value) return false;
  if (const auto* text = std::get_if<std::string_view>(&*value)) return *text == need.m_strConst;
  const auto* number = std::get_if<double>(&*value);
  return number != nullptr && need.m_minimum && *number >= *need.m_minimum;
}

std::optional<CCaseFault> CCaseSchema::CheckAlternatives(const CCaseValues& values) const {
  if (m_arrAlternative.empty()) return std::nullopt;
  const auto given = [&](int key) { return values[static_cast<std::size_t>(key)].has_value(); };
  int whole = 0;
  CText right;
  for (const auto& keys : m_arrAlternative) {
    whole += std::all_of(keys.begin(), keys.end(), given) ? 1 : 0;
    CText names;
    for (const int key : keys) {
      const std::string& name = m_arrRule[static_cast<std::size_t>(key)].m_strKey;
      const bool bFirst = names.m_strEnglish.empty();
      Append(names, {(bFirst ? "" : "、") + name, (bFirst ? "" : " with ") + name});
    }
    const bool bFirst = right.m_strEnglish.empty();
    Append(right, bFirst ? CText{"请给出 ", "give "} : CText{"，或 ", ", or "});
    Append(right, names);
  }
  if (whole == 1) return std::nullopt;
  const std::string& first = m_arrRule[static_cast<std::size_t>(m_arrAlternative[0][0])].m_strKey;
  const CText what = whole == 0 ? CText{"缺失", "is missing"}
                                : CText{"给了不止一种", "is given in more than one way"};
  return CCaseFault{first, what, right};
}

CCaseFault CCaseSchema::Never(const CNeed& need, int key) const {
  const std::string& condition = m_arrRule[static_cast<std::size_t>(need.m_nIf)].m_strKey;
  return {m_arrRule[static_cast<std::size_t>(key)].m_strKey,
          {condition + " 为“" + need.m_strConst + "”时不用",
           "has no place where " + condition + " is \"" + need.m_strConst + "\""},
          {"请删去", "leave it out"}};
}

std::optional<CCaseFault> CCaseSchema::Check(const CCaseValues& values) const {
  for (std::size_t i = 0; i < m_arrRule.size(); ++i) {
    if (!values[i]) continue;
    if (const auto wrong = Wrong(m_arrRule[i], *values[i]))
      return CCaseFault{m_arrRule[i].m_strKey, *wrong, m_arrRule[i].Right()};
  }
  for (const CNeed& need : m_arrNeed) {
    if (!Holds(need, values)) continue;
    for (const int key : need.m_arrKey) {
      const CRule& rule = m_arrRule[static_cast<std::size_t>(key)];
      if (!values[static_cast<std::size_t>(key)])
        return CCaseFault{rule.m_strKey, {"缺失", "is missing"}, rule.Right()};
    }
    for (const int key : need.m_arrNever) {
      if (values[static_cast<std::size_t>(key)]) return Never(need, key);
    }
  }
  return CheckAlternatives(values);
}

}  // namespace orv3::cli
