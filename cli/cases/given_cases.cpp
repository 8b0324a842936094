#include "cases/given_cases.h"

#include <algorithm>

#include "cases/check_answers.h"
#include "cases/schemas.h"
#include "framework/utf8.h"
#include "output/progress.h"

namespace orv3::cli {
namespace {

// The place of a key, which is "outer.inner" where an object stands at "outer"; names of keys have
// dots as well.
CJson& PlaceOf(const CCaseSchema& schema, const std::string& key, CJson& json) {
  CJson* place = &json;
  std::size_t begin = 0;
  for (std::size_t dot = key.find('.'); dot != std::string::npos; dot = key.find('.', dot + 1)) {
    if (!schema.IsObject(std::string_view(key).substr(0, dot))) continue;
    place = &(*place)[key.substr(begin, dot - begin)];
    begin = dot + 1;
  }
  return (*place)[key.substr(begin)];
}

CJson NumberJson(const CCaseSchema::CRule& rule, double number) {
  if (rule.m_bBoolean && (number == 0 || number == 1)) return number == 1;
  return JsonNumber(number);
}

CJson ListJson(const CCaseSchema::CRule& rule, std::span<const double> numbers) {
  CJson list = CJson::array();
  if (rule.m_arrMember.empty()) {
    for (const double number : numbers) list.push_back(JsonNumber(number));
    return list;
  }
  const std::size_t size = rule.m_arrMember.size();
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i % size == 0) list.push_back(CJson::object());
    list.back()[rule.m_arrMember[i % size]] = JsonNumber(numbers[i]);
  }
  return list;
}

CJson ValueJson(const CCaseSchema::CRule& rule, const CKeyValue& value) {
  if (const auto* number = std::get_if<double>(&value)) return NumberJson(rule, *number);
  if (const auto* text = std::get_if<std::string_view>(&value)) return std::string(*text);
  return ListJson(rule, std::get<std::span<const double>>(value));
}

CJson ValuesJson(const CCaseSchema& schema, const CCaseValues& values,
                 const std::vector<CCaseValues>& parts) {
  CJson json = CJson::object();
  for (std::size_t i = 0; i < schema.Rules().size(); ++i) {
    const CCaseSchema::CRule& rule = schema.Rules()[i];
    if (!values[i]) continue;
    CJson& place = PlaceOf(schema, rule.m_strKey, json);
    if (rule.m_arrPartKey.empty()) {
      place = ValueJson(rule, *values[i]);
      continue;
    }
    place = CJson::array();
    for (const CCaseValues& part : parts) place.push_back(ValuesJson(schema, part, {}));
  }
  return json;
}

}  // namespace

CJson GivenJson(const CCaseSchema& schema, const CReadCase& read) {
  return ValuesJson(schema, read.m_arrValue, read.m_arrPart);
}

CExit PrintGivenCases(const std::string& kind, const std::string& file, CLanguage language) {
  const CCaseSchema schema(SchemaOf(kind));
  CAnswers answers(CAnswerForm::Json, false, language, "");
  int cases = 0, unread = 0;
  std::string first;
  {
    CProgress progress;
    ReadCases(file, schema, language, [&](const CReadCase& read) {
      ++cases;
      if (read.m_fault && unread++ == 0) {
        const std::string number = std::to_string(cases);
        const CText which = {"第 " + number + " 个，", "case " + number + ", "};
        first = which.In(language) + read.m_fault->Line(language);
      }
      answers.AddJson(0, read.m_fault ? CJson() : GivenJson(schema, read));
      progress.Step(read.m_dDone);
    });
  }
  answers.Finish();
  if (unread == 0) return CExit::Done;
  const std::string some = std::to_string(unread), all = std::to_string(cases);
  const CText what = {all + " 个算例中有 " + some + " 个不能读出，第一个：" + first,
                      some + " of " + all + " cases cannot be read, the first: " + first};
  Refuse(Visible(file) + ": " + what.In(language));
}

}  // namespace orv3::cli
