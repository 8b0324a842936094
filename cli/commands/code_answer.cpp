#include "commands/code_answer.h"

#include <algorithm>
#include <cmath>

#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "output/output.h"

namespace orv3::cli {

const char* const kAxisNames[2] = {"x", "y"};

// "t" of a look-up is T of the command.
void RefuseAs(const CCodeRefusal& refusal) {
  std::string name = refusal.m_szArgument;
  if (name == "code") {
    name = "--code";
  } else {
    std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
      return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
  }
  Refuse(Say("{1}：{2}；{3}", "{1}: {2}; {3}", {name, Say(refusal.m_what), Say(refusal.m_right)}));
}

CCodeFigure FigureOf(std::variant<double, std::string> value, const CCodeSource& source,
                     const char* unit) {
  CCodeFigure figure{std::move(value), unit, Say(SourceText(source))};
  if (source.m_pNote != nullptr) figure.m_strNote = source.m_pNote->In(MessageLanguage());
  if (source.m_nEdition == CCodeEdition::Gb2017) figure.m_status = source.m_nStatus;
  return figure;
}

CCodeFigure FigureOf(const CCodeAnswer<double>& answer, const char* unit) {
  const double value = Needed(answer);
  return FigureOf(value, answer.Source(), unit);
}

void RefuseArgument(const char* name, const std::string& text, const CText& right) {
  Refuse(Say("{1}：“{2}”不可用；请给出{3}", "{1}: \"{2}\" is not possible; give {3}",
             {name, Excerpt(text), Say(right)}));
}

double Number(const CCodeRequest& request, std::size_t at, const char* name, const CText& right) {
  const CString text = FromUtf8(request[at]);
  if (!IsNumber(text) || ToDouble(text) < 0) RefuseArgument(name, request[at], right);
  return ToDouble(text);
}

CText AnyOf(const std::vector<std::string>& names) {
  CText list = {"下列之一：", "one of "};
  for (std::size_t i = 0; i < names.size(); ++i) {
    list.m_strChinese += (i == 0 ? "" : "、") + names[i];
    list.m_strEnglish += (i == 0 ? "" : ", ") + names[i];
  }
  return list;
}

int WordOf(const CCodeRequest& request, std::size_t at, const char* name, const char* const* words,
           std::size_t count) {
  std::vector<std::string> list;
  for (std::size_t i = 0; i < count; ++i) {
    if (request[at] == words[i]) return static_cast<int>(i);
    list.emplace_back(words[i]);
  }
  RefuseArgument(name, request[at], AnyOf(list));
}

int NumberAmong(const CCodeRequest& request, std::size_t at, const char* name,
                const std::vector<double>& numbers) {
  std::vector<std::string> list;
  for (const double each : numbers) list.push_back(NumberText(each));
  const CText right = AnyOf(list);
  const double number = Number(request, at, name, right);
  const auto found = std::find(numbers.begin(), numbers.end(), number);
  if (found == numbers.end()) RefuseArgument(name, request[at], right);
  return static_cast<int>(found - numbers.begin());
}

int Whole(const CCodeRequest& request, std::size_t at, const char* name, int first, int last,
          const CText& meanings) {
  const std::string from = std::to_string(first);
  const std::string to = std::to_string(last);
  CText right = {" " + from + " 至 " + to + " 的整数", "a whole number from " + from + " to " + to};
  if (!meanings.m_strEnglish.empty()) {
    right.m_strChinese += "：" + meanings.m_strChinese;
    right.m_strEnglish += ": " + meanings.m_strEnglish;
  }
  const double number = Number(request, at, name, right);
  if (number != std::floor(number) || number < first || number > last)
    RefuseArgument(name, request[at], right);
  return static_cast<int>(number);
}

CSteelGrade Grade(const CCodeRequest& request, std::size_t at) {
  return Needed(GradeByName(request.m_nEdition, request[at]));
}

}  // namespace orv3::cli
