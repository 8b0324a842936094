#include "members/report/choice_plot.h"

#include <algorithm>
#include <cmath>

#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr double kWidth = 720, kHeight = 440, kLeft = 60, kBottom = 50, kRight = 30, kTop = 40;
constexpr double kGreatest = 2;  // ratio at the upper end
constexpr double kDot = 2.5, kRing = 6, kTick = 4;

// A step of 1, 2 or 5 times a power of ten, at most eight to the range.
double Step(double range) {
  const double power = std::pow(10, std::floor(std::log10(range / 8)));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (range / (step * power) <= 8) return step * power;
  }
  return 10 * power;
}

class CPlot {
 public:
  CPlot(const CMemberChoice& choice, std::span<const CMemberCandidate> candidates,
        CLanguage language)
      : m_choice(choice),
        m_arrCandidate(candidates),
        m_nLanguage(language),
        m_drawing(kWidth, kHeight) {
    for (const auto* list : {&choice.m_arrChosen, &choice.m_arrFailing}) {
      for (const CChosenMember& each : *list) m_dMost = std::max(m_dMost, MassOf(each));
    }
  }

  CDrawing Draw() {
    Axes();
    Legend();
    for (const CChosenMember& each : m_choice.m_arrFailing) Dot(kFailing, At(each));
    for (const CChosenMember& each : m_choice.m_arrChosen) Dot(kPassing, At(each));
    if (!m_choice.m_arrChosen.empty()) NameLightest();
    return std::move(m_drawing);
  }

 private:
  static constexpr CLayer kPassing = CLayer::BaseAxis, kFailing = CLayer::CentroidAxis;

  double MassOf(const CChosenMember& each) const {
    return m_arrCandidate[each.m_nCandidate].m_dMass;
  }
  double X(double mass) const { return kLeft + (kWidth - kLeft - kRight) * mass / m_dMost; }
  // What is no number fails, and stands at the upper end.
  static double Y(double ratio) {
    const double shown = ratio <= kGreatest ? ratio : kGreatest;
    return kBottom + (kHeight - kBottom - kTop) * shown / kGreatest;
  }
  CPoint At(const CChosenMember& each) const { return {X(MassOf(each)), Y(each.m_dRatio)}; }

  void Dot(CLayer layer, CPoint at) { m_drawing.AddArea(layer, {CirclePath(at, kDot)}); }
  void Write(CPoint at, const CString& text, CAnchor anchor) {
    m_drawing.AddLabel({.m_at = at, .m_strText = text, .m_nAnchor = anchor});
  }
  CString Words(CTextLiteral words) const { return FromUtf8(words.In(m_nLanguage)); }

  void Axes() {
    const double right = kWidth - kRight, top = kHeight - kTop;
    m_drawing.AddLine(CLayer::Outline, {kLeft, kBottom}, {right, kBottom});
    m_drawing.AddLine(CLayer::Outline, {kLeft, kBottom}, {kLeft, top});
    m_drawing.AddLine(CLayer::Dimension, {kLeft, Y(1)}, {right, Y(1)});
    const double step = Step(m_dMost);
    for (int i = 0; i * step <= m_dMost; ++i) {
      const double x = X(i * step);
      m_drawing.AddLine(CLayer::Outline, {x, kBottom}, {x, kBottom - kTick});
      Write({x, kBottom - 14}, FormatShortest(i * step), CAnchor::Middle);
    }
    for (const double ratio : {0.0, 0.5, 1.0, 1.5, 2.0}) {
      m_drawing.AddLine(CLayer::Outline, {kLeft - kTick, Y(ratio)}, {kLeft, Y(ratio)});
      Write({kLeft - 8, Y(ratio)}, (ratio < kGreatest ? L"" : L"≥ ") + FormatShortest(ratio),
            CAnchor::Right);
    }
    Write({right, 14}, Words({"单位质量 kg/m", "mass kg/m"}), CAnchor::Right);
    Write({kLeft - kTick, kHeight - 18}, Words({"利用率", "ratio"}), CAnchor::Left);
  }

  // "● 266 pass   ● 60 fail"
  void Legend() {
    const double y = kHeight - 18;
    double x = kWidth - kRight - 220;
    const auto add = [&](CLayer layer, CTextLiteral words, std::size_t count) {
      Dot(layer, {x, y});
      Write({x + 8, y}, Words(words) + L" " + FromUtf8(std::to_string(count)), CAnchor::Left);
      x += 120;
    };
    add(kPassing, {"满足", "pass"}, m_choice.m_arrChosen.size());
    add(kFailing, {"不满足", "fail"}, m_choice.m_arrFailing.size());
  }

  // The ring among the dots, and what it stands for beside the legend.
  void NameLightest() {
    const CChosenMember& first = m_choice.m_arrChosen.front();
    const CMemberCandidate& row = m_arrCandidate[first.m_nCandidate];
    const CPoint name = {kLeft + 60, kHeight - 18};
    m_drawing.AddCircle(CLayer::Text, At(first), kRing);
    m_drawing.AddCircle(CLayer::Text, name, kRing);
    Write({name.x + 2 * kRing, name.y}, FromUtf8(row.m_strTable + " " + row.m_strNo),
          CAnchor::Left);
  }

  const CMemberChoice& m_choice;
  const std::span<const CMemberCandidate> m_arrCandidate;
  const CLanguage m_nLanguage;
  CDrawing m_drawing;
  double m_dMost = 1;
};

}  // namespace

CDrawing ChoicePlot(const CMemberChoice& choice, std::span<const CMemberCandidate> candidates,
                    CLanguage language) {
  return CPlot(choice, candidates, language).Draw();
}

}  // namespace orv3
