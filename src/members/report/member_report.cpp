#include "members/report/member_report.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "catalogue/outline/row_picture.h"
#include "framework/plain_number.h"
#include "members/report/member_symbols.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

// An exponent as one group.
std::string WithExponents(std::string text) {
  for (std::size_t at = 0; (at = text.find('^', at)) != std::string::npos; ++at) {
    text.insert(std::min(text.find_first_not_of("0123456789.", at + 1), text.size()), "}");
    text.insert(at + 1, "{");
  }
  return text;
}

// The signs of a step's formula as the report writes them.
std::string Signs(std::string_view part, const char* times) {
  std::string text = Replaced(WithExponents(std::string(part)), "·", times);
  text = Replaced(text, "²", "^2");
  text = Replaced(text, "³", "^3");
  text = Replaced(text, "⁴", "^4");
  for (const char* function : {"min", "max", "sin", "cos"})
    text = Replaced(text, std::string(function) + "(", "\\" + std::string(function) + "(");
  return text;
}

// A formula in symbols and with the numbers put in.
struct CWrittenFormula {
  std::string m_strSymbols, m_strNumbers;
};

CWrittenFormula Written(const CMemberAnswer& answer, std::size_t index) {
  CWrittenFormula written;
  for (const CFormulaPiece& piece : answer.Formula(index)) {
    const std::string text(piece.m_text);
    written.m_strSymbols +=
        piece.m_bSymbol ? MemberSymbol(text.c_str()).m_szWritten : Signs(text, " ");
    written.m_strNumbers += piece.m_pValue != nullptr ? Put(*piece.m_pValue)
                            : piece.m_bSymbol         ? text
                                                      : Signs(text, " × ");
  }
  return written;
}

class CReportWriter {
 public:
  CReportWriter(const CMemberReport& report, CLanguage language)
      : m_report(report),
        m_nEdition(report.m_check.Edition()),
        m_arrPart(report.m_envelope.Parts()),
        m_body(language) {}

  std::string Write() {
    const CMemberCheckPart& worst = m_report.m_envelope.Worst().Worst();
    m_body.Title(m_body.Text({"构件验算", "Member"}) +
                     (m_report.m_strId.empty() ? "" : "　" + m_report.m_strId),
                 m_report.m_envelope.Pass(), worst.m_dRatio);
    Warnings();
    m_body.Heading({"一、输入", "1  Input"});
    Inputs();
    if (m_report.m_bEnvelope) Combinations();
    m_body.Heading({"二、截面", "2  Section"});
    Section();
    Plates();
    m_body.Heading({"三、计算", "3  Calculation"});
    Given();
    for (const auto& part : m_arrPart) Part(part);
    m_body.Heading({"四、验算结论", "4  Verdicts"});
    Verdicts();
    m_body.Note({"单位：长度 mm；输入的力 kN、力矩 kN·mm；计算中的力 N、力矩 N·mm，应力 N/mm²。",
                 "Units: lengths mm; forces given in kN and moments in kN·mm; within the "
                 "calculation N and N·mm, stresses N/mm²."});
    return m_body.Take();
  }

 private:
  const CMemberAnswer& AnswerOf(const CMemberEnvelope::CPart& part) const {
    return m_report.m_envelope.Answers()[part.m_nCase];
  }
  const std::string& CaseName(std::size_t index) const { return m_report.m_arrCase[index].m_strId; }

  // " (combination LC1)"; nothing without names.
  static std::string OfCombination(const std::string& names, CLanguage language) {
    if (names.empty()) return "";
    return language == CLanguage::Chinese ? "（组合 " + names + "）"
                                          : " (combination " + names + ")";
  }
  std::string OfCombination(std::size_t index) const {
    return m_report.m_bEnvelope ? OfCombination(CaseName(index), m_body.Language()) : "";
  }

  void Warnings() {
    std::vector<CCaseWarning> warnings;
    for (const auto& noted : m_report.m_envelope.Notes()) {
      CText names;
      if (noted.m_arrCase.size() < m_report.m_arrCase.size()) {
        for (const std::size_t index : noted.m_arrCase) {
          names.m_strChinese += (names.m_strChinese.empty() ? "" : "、") + CaseName(index);
          names.m_strEnglish += (names.m_strEnglish.empty() ? "" : ", ") + CaseName(index);
        }
      }
      const CTextLiteral text = MemberNoteText(noted.m_nNote);
      warnings.push_back(
          {MemberNoteKey(noted.m_nNote),
           {text.m_szChinese + OfCombination(names.m_strChinese, CLanguage::Chinese),
            text.m_szEnglish + OfCombination(names.m_strEnglish, CLanguage::English)}});
    }
    m_body.Warnings(warnings);
  }

  // What is given, as text; empty for what is left out.
  static std::string GivenText(double value) { return std::isnan(value) ? "" : PlainNumber(value); }
  static std::string GivenText(const std::string& value) { return value; }
  static std::string GivenText(int value) { return value == 0 ? "" : std::to_string(value); }
  static std::string GivenText(const std::vector<double>& value) { return InputText(value, {}); }
  static std::string GivenText(const CSpacing& value) {
    return value.m_arrEach.empty() && value.m_dUniform == 0 ? "" : InputText(value, {});
  }

  using CKey = CInputKey<CMemberCase>;
  std::string GivenText(const CMemberCase& input, const CKey& key) const {
    const std::string text =
        std::visit([&](auto field) { return GivenText(input.*field); }, key.m_field);
    const bool bForce = std::string_view(key.m_szUnit).starts_with("kN");
    const std::string_view name = key.m_szKey;
    if (name == "sway" || name == "dynamic" || name == "restrained")
      return text == "1" ? m_body.Text({"是", "yes"}) : "";
    if (bForce && text == "0") return "";
    return std::holds_alternative<std::string CMemberCase::*>(key.m_field) ? Word(name, text)
                                                                           : text;
  }
  // What a key's word means.
  std::string Word(std::string_view key, const std::string& word) const {
    struct CWord {
      std::string_view m_szKey, m_szWord;
      CTextLiteral m_text;
    };
    static constexpr CWord kWords[] = {
        {"edges", "flame-cut", {"焰切边", "flame-cut"}},
        {"edges", "rolled", {"轧制边或剪切边", "rolled or sheared"}},
        {"load", "none", {"无", "none"}},
        {"load", "uniform", {"均布荷载", "uniform"}},
        {"load", "midspan", {"跨中集中荷载", "a point load at midspan"}},
        {"loadFlange", "upper", {"上翼缘", "upper"}},
        {"loadFlange", "lower", {"下翼缘", "lower"}},
        {"joined", "whole", {"全截面", "the whole section"}},
        {"joined", "leg", {"一肢", "one leg"}},
        {"joined", "long-leg", {"长肢", "the long leg"}},
        {"joined", "short-leg", {"短肢", "the short leg"}},
        {"joined", "flanges", {"翼缘", "the flanges"}},
        {"joined", "web", {"腹板", "the web"}},
        {"section.lacing.type", "lacing", {"缀条", "lacing"}},
        {"section.lacing.type", "battens", {"缀板", "battens"}},
    };
    for (const CWord& each : kWords) {
      if (each.m_szKey == key && each.m_szWord == word) return m_body.Text(each.m_text);
    }
    return word;
  }
  static bool IsOfCombination(std::string_view key) {
    static constexpr std::string_view kKeys[] = {"N",  "Mx", "My",   "Mqx",       "Mqy",
                                                 "Vx", "Vy", "load", "loadFlange"};
    return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
  }

  void Inputs() {
    const CMemberCase& input = m_report.m_arrCase.front();
    std::vector<CReportBody::CInputLine> lines;
    for (const CKey& key : MemberInputKeys()) {
      const std::string_view name = key.m_szKey;
      if (name == "id" || name == "code") continue;
      if (m_report.m_bEnvelope && IsOfCombination(name)) continue;
      const std::string value = GivenText(input, key);
      if (!value.empty()) lines.push_back({m_body.Text(key.m_name), value, key.m_szUnit});
    }
    m_body.Inputs(lines);
  }

  // Its forces, a row each.
  void Combinations() {
    std::vector<const CKey*> used;
    for (const CKey& key : MemberInputKeys()) {
      const auto given = [&](const CMemberCase& each) { return !GivenText(each, key).empty(); };
      if (IsOfCombination(key.m_szKey) &&
          std::any_of(m_report.m_arrCase.begin(), m_report.m_arrCase.end(), given))
        used.push_back(&key);
    }
    std::vector<std::string> head = {m_body.Text({"组合", "Combination"})};
    for (const CKey* key : used) {
      const std::string unit = key->m_szUnit;
      head.push_back(m_body.Text(key->m_name) + (unit.empty() ? "" : ", " + unit));
    }
    head.push_back(m_body.Text({"利用率", "Utilisation"}));
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < m_report.m_arrCase.size(); ++i) {
      auto& row = rows.emplace_back(std::vector{Escaped(CaseName(i))});
      for (const CKey* key : used) row.push_back(GivenText(m_report.m_arrCase[i], *key));
      row.push_back(Percent(m_report.m_envelope.Answers()[i].Worst().m_dRatio));
    }
    m_body.Table(head, rows);
  }

  // --- The section

  void Section() {
    m_body.Figure(RowPictureDrawing(m_report.m_check.SectionRow(), 0, nullptr, m_body.Language()),
                  m_body.Text({"截面，按比例；轴通过形心。",
                               "The section to scale; its axes pass through the centroid."}));
    std::vector<std::vector<std::string>> rows;
    for (const CUsedProperty& each : m_report.m_check.UsedProperties()) {
      rows.push_back({Formula(each.m_szWritten), m_body.Text(each.m_name),
                      PlainNumber(each.m_dValue), each.m_szUnit,
                      Escaped(each.m_source.In(m_body.Language()))});
    }
    m_body.Table(
        std::vector<std::string>{m_body.Text({"符号", "Symbol"}), m_body.Text({"名称", "Name"}),
                                 m_body.Text({"数值", "Value"}), m_body.Text({"单位", "Unit"}),
                                 m_body.Text({"来源", "Source"})},
        rows);
  }

  // Of the governing combination of all.
  void Plates() {
    const auto plates = m_report.m_envelope.Worst().Plates();
    if (plates.empty()) return;
    static constexpr CTextLiteral kNames[] = {
        {"翼缘外伸", "flange outstand"},          {"腹板（受弯）", "web in bending"},
        {"腹板（压弯）", "web with compression"}, {"箱形翼缘", "flange between webs"},
        {"箱形壁板", "wall with compression"},    {"圆管", "tube"}};
    std::vector<std::vector<std::string>> rows;
    for (const CMemberPlate& plate : plates) {
      rows.push_back(
          {m_body.Text(kNames[static_cast<std::size_t>(plate.m_nElement)]),
           PlainNumber(plate.m_dRatio),
           plate.m_nElement == CClassElement::WebCompressed ? PlainNumber(plate.m_dAlpha0) : "—",
           plate.m_class ? SectionClassName(*plate.m_class)
                         : m_body.Text({"超出 S5", "beyond the last"})});
    }
    const std::string plate = m_body.Text({"板件（3.5.1 条）", "Plate (3.5.1)"}) +
                              OfCombination(m_report.m_envelope.WorstCase());
    m_body.Table(std::vector<std::string>{plate, "b/t", "α0", m_body.Text({"宽厚比等级", "Class"})},
                 rows);
  }

  // --- The calculation

  CReportStep StepOf(const CMemberAnswer& answer, std::size_t index, const char* clause) const {
    const CMemberStep& step = answer.Step(index);
    const CMemberSymbol symbol = MemberSymbol(step.m_szSymbol);
    CReportStep line = {symbol.m_name,
                        *clause != 0 ? clause : symbol.Clause(m_nEdition),
                        symbol.m_szWritten,
                        "",
                        "",
                        PlainNumber(step.m_dValue),
                        step.m_szUnit};
    if (step.m_szFormula == nullptr) return line;
    const CWrittenFormula formula = Written(answer, index);
    line.m_strFormula = formula.m_strSymbols;
    if (formula.m_strNumbers != formula.m_strSymbols) line.m_strNumbers = formula.m_strNumbers;
    return line;
  }

  void Given() {
    const CMemberAnswer& answer = m_report.m_envelope.Worst();
    if (m_report.m_bEnvelope) {
      const std::string heading =
          Escaped(m_body.Text({"已知", "Given"}) + OfCombination(m_report.m_envelope.WorstCase()));
      m_body.Heading({heading.c_str(), heading.c_str()});
    }
    std::vector<CReportStep> steps;
    for (std::size_t i = 0; i < answer.Given().size(); ++i) steps.push_back(StepOf(answer, i, ""));
    m_body.Steps(steps);
  }

  void Part(const CMemberEnvelope::CPart& part) {
    const CTextLiteral title = MemberCheckTitle(part.m_pPart->m_nKind);
    const std::string heading = Escaped(m_body.Text(title) + OfCombination(part.m_nCase));
    m_body.Heading({heading.c_str(), heading.c_str()});
    const CMemberAnswer& answer = AnswerOf(part);
    std::vector<CReportStep> steps;
    for (std::size_t i = part.m_pPart->m_nFirst; i < part.m_pPart->m_nEnd; ++i) {
      const bool bLast = i + 1 == part.m_pPart->m_nEnd;
      steps.push_back(StepOf(answer, i, bLast ? part.m_pPart->m_szClause : ""));
    }
    m_body.Steps(steps);
  }

  void Verdicts() {
    std::vector<CReportVerdict> verdicts;
    for (const auto& part : m_arrPart) {
      const CMemberCheckPart& p = *part.m_pPart;
      const CMemberAnswer& answer = AnswerOf(part);
      const CWrittenFormula formula = Written(answer, p.m_nEnd - 1);
      verdicts.push_back({MemberCheckTitle(p.m_nKind), p.m_szClause, formula.m_strSymbols + " ≤ 1",
                          Relation(p.m_dRatio, 1, p.m_bPass), p.m_dRatio, p.m_bPass});
    }
    m_body.Verdicts(verdicts);
  }

  const CMemberReport& m_report;
  const CCodeEdition m_nEdition;
  const std::vector<CMemberEnvelope::CPart> m_arrPart;
  CReportBody m_body;
};

}  // namespace

std::string CaseReport(const CMemberReport& report, CLanguage language) {
  return CReportWriter(report, language).Write();
}

}  // namespace orv3
