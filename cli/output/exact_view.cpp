#include "output/exact_view.h"

#include <cmath>

#include "framework/language.h"
#include "framework/utf8.h"
#include "outlines/exact_keys.h"
#include "output/streams.h"
#include "output/text_table.h"

namespace orv3::cli {
namespace {

std::string InaccurateNote() {
  return Say("求解未达到精度要求：It、Iw、剪心、受剪面积和 β 为所达到的值",
             "The solver's limits of error were not reached: It, Iw, shear centre, shear areas "
             "and β are what was reached");
}

// The solver's own estimate of how far its figures may be off.
std::string ErrorsLine(const CExactErrors& e) {
  const auto percent = [](double part) { return NumberText(std::round(part * 1e6) / 1e4) + " %"; };
  if (std::isnan(e.Iw)) return Say("误差估计：It {1}", "Estimated errors: It {1}", {percent(e.It)});
  return Say(
      "误差估计：It {1}，Iw {2}，受剪面积 {3}，剪心 {4} mm，β {5} mm",
      "Estimated errors: It {1}, Iw {2}, shear areas {3}, shear centre {4} mm, β {5} mm",
      {percent(e.It), percent(e.Iw), percent(e.As), NumberText(std::round(e.center * 1e6) / 1e6),
       NumberText(std::round(e.center * 2e6) / 1e6)});
}

std::string MissingNote(const CExactProperties& exact) {
  if (std::isnan(exact.A)) return Say("没有轮廓", "there is no outline");
  // About the length of the walls by their thickness.
  const double slender = 12 * (exact.Ix + exact.Iy) / (exact.A * exact.A);
  if (exact.m_error.It > 0 || slender > 1e6) {
    return Say("壁厚相对外形尺寸过小，无法求得误差 10 % 以内的值",
               "its walls are too thin beside its size to be solved within 10 %");
  }
  return Say("板件重叠，或相触、仅在一线相接，轮廓不能确定",
             "its plates overlap, touch or meet in an edge without width");
}

// Why figures are missing, or less than they are elsewhere.
std::vector<std::string> ExactNotes(const CExactProperties& exact) {
  if (std::isnan(exact.It)) return {Say("-：{1}", "-: {1}", {MissingNote(exact)})};
  std::vector<std::string> notes{ErrorsLine(exact.m_error)};
  if (!exact.m_bAccurate) notes.push_back(InaccurateNote());
  if (!exact.m_bJoined) {
    notes.push_back(Say(
        "各部分沿长度方向不相连：It 为各部分之和，-：无此量",
        "The parts are not joined along their length: It is the sum of theirs, -: there is no such "
        "figure"));
  }
  return notes;
}

CJson ErrorsJson(const CExactProperties& exact) {
  const CExactErrors& e = exact.m_error;
  return {{"It", JsonNumber(e.It)},
          {"Iw", JsonNumber(e.Iw)},
          {"As", JsonNumber(e.As)},
          {"center", JsonNumber(e.center)},
          {"betas", JsonNumber(2 * e.center)}};
}

CJson ExactJson(const CExactProperties& exact) {
  CJson json = CJson::object();
  for (const CExactKey& key : ExactKeys()) json[key.m_szKey] = JsonNumber(exact.*key.m_pField);
  return json;
}

}  // namespace

void AddExactJson(CJson& json, const CExactProperties& exact) {
  json["exact"] = ExactJson(exact);
  AddAccuracyJson(json, exact);
  if (std::isnan(exact.It)) json["missing"] = MissingNote(exact);
}

void AddAccuracyJson(CJson& json, const CExactProperties& exact) {
  json["accurate"] = exact.m_bAccurate;
  json["errors"] = ErrorsJson(exact);
}

void WarnInaccurate(const std::string& what, const CExactProperties& exact) {
  if (std::isnan(exact.It) || exact.m_bAccurate) return;
  WriteError("orv3cal: " + Visible(what) + ": " + InaccurateNote() + "\n");
}

void PrintExact(const CExactProperties& exact) {
  Print(Say("\n由轮廓精确计算（原点为外接矩形左下角）\n\n",
            "\nExact, from the outline itself (origin at the lower left corner of its box)\n\n"));
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  for (const CExactKey& key : ExactKeys()) {
    table.AddRow({key.m_szTitle, key.m_szKey, NumberText(exact.*key.m_pField), key.m_szUnit,
                  Say({"", key.m_szMeaning})});
  }
  Print(table.Text());
  for (const std::string& note : ExactNotes(exact)) Print("\n" + note + "\n");
}

}  // namespace orv3::cli
