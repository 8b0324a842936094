#include "members/member_answer.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "framework/language.h"
#include "framework/plain_number.h"

namespace orv3 {
namespace {

struct CKindText {
  const char* m_szName;
  CTextLiteral m_title;
};

constexpr CKindText kKinds[] = {
    {"strength", {"强度", "strength"}},
    {"net", {"净截面", "net section"}},
    {"shear", {"抗剪", "shear"}},
    {"combined", {"折算应力", "combined stress"}},
    {"stability-x", {"绕 x 轴稳定", "stability about x"}},
    {"stability-y", {"绕 y 轴稳定", "stability about y"}},
    {"stability-z", {"扭转稳定", "torsional stability"}},
    {"lateral", {"整体稳定", "lateral buckling"}},
    {"slenderness", {"长细比", "slenderness"}},
    {"flange", {"翼缘宽厚比", "flange"}},
    {"web", {"腹板高厚比", "web"}},
    {"panel", {"腹板区格", "web panel"}},
    {"wall", {"壁板宽厚比", "wall"}},
    {"limbs", {"分肢", "limbs"}},
    {"lacing", {"缀材", "lacing"}},
    {"limb-strength", {"分肢强度", "strength of the limbs"}},
    {"lacing-leg", {"缀条肢宽厚比", "leg of a bar"}},
    {"batten-stiffness", {"缀板线刚度", "stiffness of battens"}},
};
static_assert(std::size(kKinds) == kMemberCheckKinds);

const CKindText& TextOf(CMemberCheckKind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

struct CNoteText {
  CMemberNote m_nNote;
  const char* m_szKey;
  CTextLiteral m_text;
};

constexpr CTextLiteral kAssumedShear = {
    "未给：由荷载和端弯矩按跨度等于计算长度的简支梁求得",
    "is not given: that of the load and the end moments on a simple span of the effective length "
    "is taken"};

constexpr CNoteText kNotes[] = {
    {CMemberNote::Q355, "steel", {"Q355 按 Q345 一栏取值", "Q355 is taken by the figures of Q345"}},
    {CMemberNote::PartOfMember,
     "supports",
     {"侧向支承点间的构件段短于构件：端弯矩的 βt、βb 按弯矩图上含 M1 的一段取用",
      "parts between lateral supports are shorter than the member: βt and βb of end moments are "
      "those "
      "of the part that has M1"}},
    {CMemberNote::BetweenLoadAndEnds,
     "load",
     {"端弯矩与横向荷载同时作用：βb 取两者单独作用时的较小值",
      "end moments together with a load: βb is the lesser of those of either alone"}},
    {CMemberNote::RolledITable,
     "section",
     {"仅端弯矩作用或轻型工字钢：φb 按 C.0.1（2003：B.1）由截面自身数值计算",
      "end moments, or a light rolled I: φb by C.0.1 (2003: B.1) with the section's own figures"}},
    {CMemberNote::RolledIShort,
     "lengths.span",
     {"φb 表 C.0.2（2003：B.2）自 2 m 起：按 2 m 取值，偏于安全",
      "Table C.0.2 (2003: B.2) of φb begins at 2 m: its value of 2 m is taken, which is safe"}},
    {CMemberNote::Stiffeners,
     "stiffeners",
     {"腹板高厚比大于 80εk，未给横向加劲肋：按无加劲肋验算；6.3.2 宜配置",
      "the web is over 80 εk and no stiffeners are given: it is checked without any; 6.3.2 "
      "recommends them"}},
    {CMemberNote::NeedsStiffeners,
     "stiffeners",
     {"腹板高厚比大于 80εk，未给横向加劲肋：6.3.2（2003：4.3.2）要求配置",
      "the web is over 80 εk and no stiffeners are given: 6.3.2 (2003: 4.3.2) asks for them"}},
    {CMemberNote::StiffenerPlates,
     "stiffeners",
     {"加劲肋本身的尺寸（6.3.6；2003：4.3.6）未在此验算",
      "the sizes of the stiffeners (6.3.6; 2003: 4.3.6) are not checked here"}},
    {CMemberNote::UnusedStiffeners,
     "stiffeners",
     {"未用到：没有大于 80εk 的受弯或受剪腹板区格",
      "is not used: no panel of a web over 80 εk is bent or sheared"}},
    {CMemberNote::UnusedRestrained,
     "restrained",
     {"未用到：没有大于 80εk 的受弯或受剪腹板区格",
      "is not used: no panel of a web over 80 εk is bent or sheared"}},
    {CMemberNote::LocalPressure,
     "load",
     {"假定集中荷载处设有支承加劲肋：局部压应力（6.1.4；2003：4.1.3）未在此验算",
      "a bearing stiffener is taken to stand under the load at midspan: its local pressure (6.1.4; "
      "2003: 4.1.3) is not checked here"}},
    {CMemberNote::EffectiveSection,
     "section",
     {"板件为 S5 级：按有效截面计算", "a plate of class S5: taken with its effective section"}},
    {CMemberNote::ShearCentre,
     "section",
     {"假定荷载通过剪心，不计扭转", "loads are taken through the shear centre, without torsion"}},
    {CMemberNote::BoxBeyond,
     "lengths",
     {"超出免验整体稳定的限值，规范没有箱形截面的 φb：判为不满足",
      "beyond the limits within which a box needs no check of lateral buckling; the code has no φb "
      "of it: judged as failing"}},
    {CMemberNote::TWebByAxial,
     "section",
     {"表 3.5.1 没有 T 形截面腹板：按 7.3.1 的限值",
      "Table 3.5.1 has no web of a T: taken by the limit of 7.3.1"}},
    {CMemberNote::TWebAsBeam,
     "section",
     {"6.3（2003：4.3）的区格两边均有支承，没有 T 形截面腹板：限于 80εk",
      "6.3 (2003: 4.3) has panels held at both edges and none of a T's web: it is held to 80 εk"}},
    {CMemberNote::AngleLengths,
     "lengths",
     {"单角钢绕最小轴失稳：取两个计算长度的较大值",
      "a single angle buckles about its least axis: the greater of both lengths is taken"}},
    {CMemberNote::TubeLoads,
     "load",
     {"有横向荷载的圆管：取最大合弯矩，β = 1",
      "a tube with a load in the span: the greatest resultant moment, β = 1"}},
    {CMemberNote::TubeSway,
     "sway",
     {"有侧移的双向压弯圆管：β = 1", "a tube that sways under both moments: β = 1"}},
    {CMemberNote::SwayWithLoad,
     "sway",
     {"有侧移并有横向荷载：βm 取 1.0，即规范对柱脚铰接的单层框架柱和多层框架底层柱的规定",
      "sway with a transverse load: βm is 1.0, as the code has it of columns with pinned bases of "
      "single-storey frames and of ground storeys"}},
    {CMemberNote::HolesWithoutBolts,
     "net",
     {"受压：net 按没有螺栓的孔计", "compression: net is taken as holes without bolts"}},
    {CMemberNote::RolledEdges, "edges", {"翼缘按焰切边", "flange edges are taken as flame-cut"}},
    {CMemberNote::LimbMoment,
     "Mx",
     {"分肢按所分得的轴力作为轴心受压构件验算",
      "limbs are checked for their share of the forces as struts"}},
    {CMemberNote::PairWithoutGap,
     "section.gap",
     {"未给组合间距：按该行自身的间距取值", "no gap is given: the pair has that of its row"}},
    {CMemberNote::PackingPlates,
     "section",
     {"按实腹式构件：填板间距不应大于 40i（受拉 "
      "80i），受压时两侧向支承点间不少于两块（7.2.6；2003："
      "5.1.5），未验算",
      "as of one solid member: packing plates are to stand at most 40 i apart (80 i in tension), "
      "in "
      "compression at least two between lateral supports (7.2.6; 2003: 5.1.5), which is not "
      "checked"}},
    {CMemberNote::AssumedVx, "Vx", kAssumedShear},
    {CMemberNote::AssumedVy, "Vy", kAssumedShear},
    {CMemberNote::UnusedLengthZ,
     "lengths.z",
     {"未用到：该截面和荷载不计扭转",
      "is not used: this section under these loads asks no torsion"}},
    {CMemberNote::UnusedSpan,
     "lengths.span",
     {"未用到：没有需验算整体稳定的弯矩",
      "is not used: there is no moment to check lateral buckling by"}},
    {CMemberNote::UnusedSway,
     "sway",
     {"未用到：没有压力和弯矩", "is not used: it takes compression with a moment"}},
    {CMemberNote::UnusedLoadFlange,
     "loadFlange",
     {"未用到：没有 Mx 的荷载", "is not used: Mx has no load"}},
    {CMemberNote::LimbLength,
     "section.lacing.l1",
     {"未给：按无横缀条的单缀条节间长度取值",
      "is not given: the panel of single lacing without cross bars"}},
    {CMemberNote::BondJoints,
     "section.lacing",
     {"缀材与分肢的连接未在此验算", "the joints of the bond with the limbs are not checked here"}},
    {CMemberNote::AssumedLengthZ,
     "lengths.z",
     {"未给：扭转计算长度取绕 y 轴的计算长度",
      "is not given: the effective length about y is taken"}},
    {CMemberNote::AssumedSpan,
     "lengths.span",
     {"未给：受压翼缘自由长度取侧向的计算长度",
      "is not given: the effective length across the moment is taken"}},
    {CMemberNote::AssumedLoadFlange,
     "loadFlange",
     {"未给：荷载按作用于上翼缘", "is not given: the load is taken on the upper flange"}},
    {CMemberNote::AssumedAngle,
     "section.lacing.angle",
     {"未给：按 45°", "is not given: 45 degrees are taken"}},
    {CMemberNote::AssumedSupports,
     "supports",
     {"未给：跨中按无侧向支承", "is not given: no lateral support in the span is taken"}},
    {CMemberNote::AssumedJoint,
     "joined",
     {"未给：按全截面连接；单边连接的单角钢应折减（7.6.1；2003：3.4.2）",
      "is not given: the whole section is taken as joined; a single angle on one leg is weaker "
      "(7.6.1; 2003: 3.4.2)"}},
    {CMemberNote::LimitBeyond,
     "limit",
     {"大于规范的最大容许长细比：按规范的最大值验算（受压 200，受拉 400，"
      "直接动力荷载 250）",
      "is above the code's greatest, which is taken: 200 in compression, 400 in tension, 250 under "
      "direct dynamic load"}},
    {CMemberNote::BeyondEuler,
     "N",
     {"达到弹性屈曲力：弯矩放大的分母不大于 0，弯矩项取 ∞",
      "reaches the force of elastic buckling: what the moment is divided by is not above 0, and "
      "its "
      "term is taken as ∞"}},
    {CMemberNote::OppositeMoment,
     "Mx",
     {"弯矩变号而截面两边不同：反号的最大弯矩另行验算，其等效弯矩系数偏于安全，取较不利者",
      "Mx changes its sense and the edges differ: the greatest of the other sense is checked too, "
      "its equivalent moment on the safe side; the worse is shown"}},
    {CMemberNote::UnusedNetA, "net.A", {"未用到：没有轴力", "is not used: there is no N"}},
    {CMemberNote::UnusedNetW, "net.W", {"未用到：没有弯矩", "is not used: there is no moment"}},
    {CMemberNote::UnusedSupports, "supports", {"未用到：没有 Mx", "is not used: there is no Mx"}},
};

const CNoteText& TextOf(CMemberNote note) {
  return *std::find_if(std::begin(kNotes), std::end(kNotes),
                       [note](const CNoteText& each) { return each.m_nNote == note; });
}

// The value of a symbol before the step `end`: the nearest above it, in the check or the given.
const double* ValueOf(std::span<const CMemberStep> steps, std::string_view symbol) {
  for (std::size_t i = steps.size(); i-- > 0;) {
    if (symbol == steps[i].m_szSymbol) return &steps[i].m_dValue;
  }
  return nullptr;
}

// What the formulas call by an English word has in Chinese the report's sign.
std::string_view StepSymbol(std::string_view symbol) {
  static constexpr std::pair<std::string_view, std::string_view> kSigns[] = {
      {"ratio", "u"},   {"axial", "uN"}, {"bending", "uM"},
      {"across", "uT"}, {"panel", "up"}, {"tension side", "u2"}};
  if (MessageLanguage() == CLanguage::Chinese) {
    for (const auto& [word, sign] : kSigns) {
      if (word == symbol) return sign;
    }
  }
  return symbol;
}

std::string PutNumber(double value) {
  const std::string text = PlainNumber(value);
  return value < 0 ? "(" + text + ")" : text;
}

}  // namespace

const char* MemberCheckName(CMemberCheckKind kind) noexcept { return TextOf(kind).m_szName; }
CTextLiteral MemberCheckTitle(CMemberCheckKind kind) noexcept { return TextOf(kind).m_title; }
CTextLiteral MemberNoteText(CMemberNote note) noexcept { return TextOf(note).m_text; }
const char* MemberNoteKey(CMemberNote note) noexcept { return TextOf(note).m_szKey; }

void CMemberAnswer::Clear() {
  m_results = {};
  m_arrStep.clear();
  m_arrPart.clear();
  m_arrNote.clear();
  m_arrPlate.clear();
  m_fault.reset();
}

void CMemberAnswer::Close(const char* formula, double ratio) {
  constexpr double kLastDigits = 1e-9;
  CMemberCheckPart& part = m_arrPart.back();
  if (std::isinf(ratio)) Note(CMemberNote::BeyondEuler);
  part.m_bPass = ratio <= 1 + kLastDigits;
  part.m_dRatio = part.m_bPass ? std::min(ratio, 1.0) : ratio;
  Step("ratio", formula, part.m_dRatio);
  part.m_nEnd = m_arrStep.size();
}

void CMemberAnswer::Note(CMemberNote note) {
  if (std::find(m_arrNote.begin(), m_arrNote.end(), note) == m_arrNote.end())
    m_arrNote.push_back(note);
}

void CMemberAnswer::TakeWorse(const CMemberAnswer& other) {
  if (other.m_fault) {
    m_fault = other.m_fault;
    return;
  }
  const char* worse =
      std::max(std::string_view(m_results.m_szClass), std::string_view(other.m_results.m_szClass))
          .data();
  if (other.Worst().m_dRatio > Worst().m_dRatio) m_results = other.m_results;
  m_results.m_szClass = worse;
  std::vector<CMemberStep> steps(Given().begin(), Given().end());
  std::vector<CMemberCheckPart> parts;
  const auto take = [&](const CMemberAnswer& from, CMemberCheckPart part) {
    const auto own = from.Steps(part);
    part.m_nFirst = steps.size();
    steps.insert(steps.end(), own.begin(), own.end());
    part.m_nEnd = steps.size();
    parts.push_back(part);
  };
  for (const CMemberCheckPart& part : m_arrPart) {
    const CMemberCheckPart* same = other.Find(part.m_nKind);
    const bool bOther = same != nullptr && !(same->m_dRatio <= part.m_dRatio);
    take(bOther ? other : *this, bOther ? *same : part);
  }
  for (const CMemberCheckPart& part : other.m_arrPart) {
    if (Find(part.m_nKind) == nullptr) take(other, part);
  }
  m_arrStep = std::move(steps);
  m_arrPart = std::move(parts);
  for (const CMemberNote note : other.m_arrNote) Note(note);
  const auto beyond = [](const CMemberPlate& plate) {
    return plate.m_class ? static_cast<int>(*plate.m_class) : std::numeric_limits<int>::max();
  };
  for (const CMemberPlate& plate : other.m_arrPlate) {
    const auto same = std::find_if(m_arrPlate.begin(), m_arrPlate.end(), [&](const auto& each) {
      return each.m_nElement == plate.m_nElement;
    });
    if (same == m_arrPlate.end()) {
      m_arrPlate.push_back(plate);
    } else if (beyond(plate) > beyond(*same)) {
      *same = plate;
    }
  }
}

bool CMemberAnswer::Pass() const noexcept {
  return !m_arrPart.empty() && std::all_of(m_arrPart.begin(), m_arrPart.end(),
                                           [](const CMemberCheckPart& p) { return p.m_bPass; });
}

const CMemberCheckPart& CMemberAnswer::Worst() const noexcept {
  const CMemberCheckPart* worst = &m_arrPart.front();
  for (const CMemberCheckPart& part : m_arrPart) {
    if (std::isnan(worst->m_dRatio)) break;
    if (!(part.m_dRatio <= worst->m_dRatio)) worst = &part;
  }
  return *worst;
}

const CMemberCheckPart* CMemberAnswer::Find(CMemberCheckKind kind) const noexcept {
  for (const CMemberCheckPart& part : m_arrPart) {
    if (part.m_nKind == kind) return &part;
  }
  return nullptr;
}

double CMemberAnswer::Ratio(CMemberCheckKind kind) const noexcept {
  const CMemberCheckPart* part = Find(kind);
  return part != nullptr ? part->m_dRatio : CMemberResults::kNone;
}

const double* CMemberAnswer::ValueBefore(std::size_t index,
                                         std::string_view symbol) const noexcept {
  std::size_t first = 0;
  for (const CMemberCheckPart& part : m_arrPart) {
    if (part.m_nFirst <= index) first = part.m_nFirst;
  }
  const auto before = std::span(m_arrStep).subspan(first, index - first);
  const double* value = ValueOf(before, symbol);
  return value != nullptr ? value : ValueOf(Given(), symbol);
}

std::vector<CFormulaPiece> CMemberAnswer::Formula(std::size_t index) const {
  std::vector<CFormulaPiece> pieces;
  std::string_view rest = m_arrStep[index].m_szFormula;
  while (!rest.empty()) {
    const std::size_t open = std::min(rest.find('{'), rest.size());
    if (open > 0) pieces.push_back({rest.substr(0, open), false, nullptr});
    if (open == rest.size()) break;
    const std::size_t close = rest.find('}', open);
    const std::string_view symbol = rest.substr(open + 1, close - open - 1);
    pieces.push_back({symbol, true, ValueBefore(index, symbol)});
    rest.remove_prefix(close + 1);
  }
  return pieces;
}

std::string CMemberAnswer::StepText(std::size_t index) const {
  const CMemberStep& step = m_arrStep[index];
  std::string text(StepSymbol(step.m_szSymbol));
  if (step.m_szFormula != nullptr) {
    std::string symbols, numbers;
    for (const CFormulaPiece& piece : Formula(index)) {
      symbols += piece.m_bSymbol ? StepSymbol(piece.m_text) : piece.m_text;
      numbers += piece.m_pValue != nullptr ? PutNumber(*piece.m_pValue) : std::string(piece.m_text);
    }
    text += " = " + symbols;
    if (numbers != symbols) text += " = " + numbers;
  }
  text += " = " + PlainNumber(step.m_dValue);
  if (*step.m_szUnit != 0) text += std::string(" ") + step.m_szUnit;
  return text;
}

}  // namespace orv3
