#include <algorithm>
#include <cmath>

#include "codes/weld_strength.h"
#include "connections/cases/case_rules.h"
#include "connections/gb2017/bolt_case.h"
#include "connections/gb2017/code_figures.h"
#include "connections/gb2017/notes.h"
#include "connections/gb2017/weld_case.h"

namespace orv3 {
namespace {

CSteelGrade SteelOf(const CButtCase2017& input) noexcept {
  return static_cast<CSteelGrade>(input.m_nSteel);
}

auto MakeButtInputKeys() {
  std::vector<CInputKey<CButtCase2017>> keys;
  for (const CInputKey<CButtCase>& key : CButtCheck::InputKeys()) {
    std::visit(
        [&](auto field) {
          keys.push_back({key.m_szKey, field, key.m_szUnit, key.m_name, key.m_choices});
        },
        key.m_field);
    if (std::string_view(key.m_szKey) == "steel") keys.back().m_choices = kGradeNames;
  }
  return keys;
}

}  // namespace

std::span<const CInputKey<CButtCase2017>> CButtCheck2017::InputKeys() {
  static const auto kKeys = MakeButtInputKeys();
  return kKeys;
}

bool CButtCheck2017::IsRefused(const CButtCase2017& input) {
  CFaultList faults;
  ButtFieldFaults(input, faults);
  faults.Within("steel", input.m_nSteel, 0, gb2017::kLastSteel);
  m_results = {};
  if (faults.IsEmpty()) {
    const auto weld = gb2017::Take(
        ButtWeldStrengths(gb2017::kEdition, SteelOf(input), input.m_dThick), "steel", faults);
    m_results.m_dFtw = input.m_nQuality == 3 ? weld.m_dFtw3 : weld.m_dFtw12;
    m_results.m_dFcw = weld.m_dFcw;
    m_results.m_dFvw = weld.m_dFvw;
  }
  return Refused(faults.Take());
}

// 11.2.1: both edges, tension against ftw and compression against fcw.
bool CButtCheck2017::Run(const CButtCase2017& input) {
  if (IsRefused(input)) return false;
  CButtResults& r = m_results;
  if (input.m_nLoadCase != 0) r.m_dW = input.m_dThick * input.m_dLw * input.m_dLw / 6;
  const CWeldFigures j = m_figures = JudgedFigures(static_cast<const CButtCase&>(input), r);
  r.m_dSigma = j.m_dSigma;
  r.m_dTau = j.m_dTau;
  r.m_dReduced = j.m_dCombined;
  const auto judge = [&](CTextLiteral name, const char* key, double effect, double limit) {
    Judge(name, key, effect / limit);
    return Parts().back().m_bPass;
  };
  r.m_bTau = r.m_bReduced = true;
  r.m_bSigma = judge({"正应力 σ", "normal stress σ"}, "sigma", j.Across(), j.AcrossLimit());
  if (j.m_bShear) {
    r.m_bTau = judge({"剪应力 τ", "shear stress τ"}, "tau", j.m_dTau, j.m_dTauLimit);
    r.m_bReduced =
        judge({"折算应力", "reduced stress"}, "reduced", j.m_dCombined, j.m_dCombinedLimit);
  }
  std::vector<CCaseWarning> notes;
  gb2017::NoteOf(ButtWeldStrengths(gb2017::kEdition, SteelOf(input), input.m_dThick), "steel",
                 notes);
  gb2017::NoteOfEdge(j, notes);
  Warn(std::move(notes));
  return true;
}

}  // namespace orv3
