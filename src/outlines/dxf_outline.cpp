#include "outlines/dxf_outline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <set>
#include <utility>

#include "framework/elementary.h"
#include "framework/excerpt.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/loop_chain.h"

namespace orv3 {
namespace {

constexpr double kJoin = 1e-3;  // mm

// Thrown inside of this file only.
struct CDxfFault {
  COutlineFault m_fault;
};

[[noreturn]] void Fail(std::string chinese, std::string english) {
  throw CDxfFault{{std::move(chinese), std::move(english)}};
}

[[noreturn]] void FailAt(std::size_t line, const std::string& chinese, const std::string& english) {
  Fail("第 " + std::to_string(line) + " 行：" + chinese,
       "line " + std::to_string(line) + ": " + english);
}

// --- Groups --------------------------------------------------------------------------------------

struct CGroup {
  int m_nCode = -1;
  std::string_view m_strValue;
  std::size_t m_nLine = 0;  // of the value
};

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

double Number(const CGroup& group) {
  const CString wide = FromUtf8(group.m_strValue);
  if (!IsNumber(wide)) {
    const std::string value = Excerpt(std::string(group.m_strValue));
    FailAt(group.m_nLine, "\"" + value + "\" 不是数", "\"" + value + "\" is no number");
  }
  return ToDouble(wide);
}

// The file as groups, each a code and a value on lines of their own. One group can be put back.
class CGroups {
 public:
  explicit CGroups(std::string_view text) : m_strRest(text) {}

  bool Next(CGroup& group) {
    if (std::exchange(m_bBack, false)) {
      group = m_last;
      return true;
    }
    std::string_view code;
    if (!Line(code)) return false;
    if (code.empty() && m_strRest.empty()) return false;  // an empty line at the end
    const CString wide = FromUtf8(code);
    if (!IsNumber(wide) || FormatInt(ToInt(wide)) != wide) {
      FailAt(m_nLine, "不是 DXF 的组码", "is no DXF, a group code stands here");
    }
    m_last = {ToInt(wide), {}, 0};
    if (!Line(m_last.m_strValue)) FailAt(m_nLine, "文件在此中断", "the file breaks off here");
    m_last.m_nLine = m_nLine;
    group = m_last;
    return true;
  }
  void PutBack() { m_bBack = true; }

 private:
  bool Line(std::string_view& line) {
    if (m_strRest.empty()) return false;
    const std::size_t end = m_strRest.find('\n');
    line = Trimmed(m_strRest.substr(0, end));
    m_strRest.remove_prefix(end == m_strRest.npos ? m_strRest.size() : end + 1);
    ++m_nLine;
    return true;
  }

  std::string_view m_strRest;
  std::size_t m_nLine = 0;
  CGroup m_last;
  bool m_bBack = false;
};

// --- Entities ------------------------------------------------------------------------------------

// One entity with its groups up to the next code 0.
struct CEntity {
  std::string m_strKind;
  std::size_t m_nLine = 0;
  std::string m_strLayer;
  std::vector<CGroup> m_arrGroup;

  double Value(int code, double otherwise = 0) const {
    for (const CGroup& group : m_arrGroup) {
      if (group.m_nCode == code) return Number(group);
    }
    return otherwise;
  }
  int Flags() const { return static_cast<int>(std::clamp(Value(70), 0.0, 1e6)); }
};

constexpr std::array kPassedOver = {
    std::string_view("TEXT"),    std::string_view("MTEXT"),       std::string_view("ATTDEF"),
    std::string_view("ATTRIB"),  std::string_view("HATCH"),       std::string_view("DIMENSION"),
    std::string_view("POINT"),   std::string_view("LEADER"),      std::string_view("MLEADER"),
    std::string_view("RAY"),     std::string_view("XLINE"),       std::string_view("TOLERANCE"),
    std::string_view("WIPEOUT"), std::string_view("MULTILEADER"), std::string_view("VIEWPORT")};

struct CUnit {
  int m_nCode;
  double m_dMm;
};
constexpr CUnit kUnits[] = {{0, 1}, {1, 25.4}, {2, 304.8}, {4, 1}, {5, 10}, {6, 1000}, {14, 100}};

class CDxfReader {
 public:
  CDxfReader(std::string_view text, const std::string& layer) : m_groups(text), m_strLayer(layer) {}

  std::vector<CPath> Read() {
    CGroup group;
    bool found = false;
    while (m_groups.Next(group)) {
      if (group.m_nCode == 9 && group.m_strValue == "$INSUNITS") ReadUnit();
      if (group.m_nCode == 0 && group.m_strValue == "LAYER") ReadLayer();
      if (group.m_nCode != 0 || group.m_strValue != "SECTION") continue;
      if (!m_groups.Next(group) || group.m_nCode != 2 || group.m_strValue != "ENTITIES") continue;
      found = true;
      ReadEntities();
    }
    if (!found) {
      Fail("不是 DXF 文件，或缺少 ENTITIES 段；请用 ASCII DXF",
           "is no DXF file, or has no section ENTITIES; right would be an ASCII DXF");
    }
    if (m_arrClosed.empty() && m_arrOpen.empty() && !m_left.empty()) FailOnLayers();
    for (auto* paths : {&m_arrClosed, &m_arrOpen}) {
      for (CPath& path : *paths) Clean(path);
    }
    DropCopies(m_arrOpen);
    if (const auto fault = JoinLoops(m_arrOpen, kJoin, m_arrClosed)) throw CDxfFault{*fault};
    return std::move(m_arrClosed);
  }

 private:
  void ReadUnit() {
    CGroup group;
    if (!m_groups.Next(group)) return;
    const double code = Number(group);
    for (const CUnit& unit : kUnits) {
      if (code != unit.m_nCode) continue;
      m_dMm = unit.m_dMm;
      return;
    }
    const std::string value = Excerpt(std::string(group.m_strValue));
    FailAt(group.m_nLine,
           "$INSUNITS " + value +
               " 不支持；请用 4（mm），或 0、1（英寸）、2（英尺）、5（cm）、6（m）、14（dm）",
           "$INSUNITS " + value +
               " is not taken; right would be 4 (mm), or 0, 1 (inch), 2 (foot), 5 (cm), 6 (m), "
               "14 (dm)");
  }

  // A record of the table of layers: off with a colour below 0, frozen by a flag.
  void ReadLayer() {
    CEntity layer;
    CGroup group;
    while (m_groups.Next(group)) {
      if (group.m_nCode == 0) {
        m_groups.PutBack();
        break;
      }
      if (group.m_nCode == 2) layer.m_strLayer = group.m_strValue;
      layer.m_arrGroup.push_back(group);
    }
    if (layer.Value(62) < 0 || (layer.Flags() & 1) != 0) m_hidden.insert(Lowered(layer.m_strLayer));
  }

  // Coordinates in mm, and no edge without length: a repeated point counts once.
  void Clean(CPath& path) const {
    const auto same = [](const CVertex& a, const CVertex& b) {
      return Hypot(a.x - b.x, a.y - b.y) <= kJoin;
    };
    std::vector<CVertex> kept;
    for (const CVertex& v : path.m_arrVertex) {
      const CVertex mm{v.x * m_dMm, v.y * m_dMm, v.bulge};
      if (!kept.empty() && same(kept.back(), mm)) {
        kept.back().bulge = v.bulge;
      } else {
        kept.push_back(mm);
      }
    }
    if (path.m_bClosed && kept.size() > 2 && same(kept.front(), kept.back())) kept.pop_back();
    path.m_arrVertex = std::move(kept);
  }

  // Lines without length, and lines and arcs drawn over each other, whichever way they run.
  static void DropCopies(std::vector<CPath>& paths) {
    std::set<std::vector<double>> seen;
    const auto key = [](const CPath& path) {
      std::vector<double> numbers;
      for (const CVertex& v : path.m_arrVertex) {
        const bool last = &v == &path.m_arrVertex.back();
        for (const double x : {v.x / kJoin, v.y / kJoin, last ? 0 : v.bulge * 1e6})
          numbers.push_back(std::round(x));
      }
      return numbers;
    };
    std::erase_if(paths, [&](const CPath& path) {
      if (path.m_arrVertex.size() < 2) return true;
      return !seen.insert(std::min(key(path), key(Reversed(path)))).second;
    });
  }

  bool ReadEntity(CEntity& entity) {
    CGroup group;
    if (!m_groups.Next(group)) return false;
    entity = {std::string(group.m_strValue), group.m_nLine, {}, {}};
    while (m_groups.Next(group)) {
      if (group.m_nCode == 0) {
        m_groups.PutBack();
        return true;
      }
      if (group.m_nCode == 8 && entity.m_strLayer.empty()) entity.m_strLayer = group.m_strValue;
      entity.m_arrGroup.push_back(group);
    }
    return entity.m_strKind == "ENDSEC";  // anything else goes on
  }

  void ReadEntities() {
    CEntity entity;
    while (ReadEntity(entity)) {
      if (entity.m_strKind == "ENDSEC") return;
      if (entity.m_strKind == "ENTITIES" || entity.m_strKind == "SEQEND") continue;
      const bool wanted = IsDrawn(entity) && IsOnLayer(entity);
      if (IsDrawn(entity) && !wanted) m_left.insert(entity.m_strLayer);
      if (entity.m_strKind == "POLYLINE") {
        ReadPolyline(entity, wanted);
      } else if (wanted) {
        Take(entity);
      }
    }
    Fail("文件中断，缺少 ENTITIES 段的结尾；请给出完整文件",
         "breaks off in the section ENTITIES; right would be the whole file");
  }

  // Nothing is drawn on the layers that count, but on others.
  [[noreturn]] void FailOnLayers() const {
    constexpr int kMostNames = 10;
    std::string names;
    int named = 0;
    for (const std::string& layer : m_left) {
      if (++named > kMostNames) break;
      names += (names.empty() ? "" : ", ") + Excerpt(layer);
    }
    if (named > kMostNames) names += ", ...";
    if (m_strLayer.empty()) {
      Fail("只在关闭或冻结的图层上有图形：" + names + "；请打开图层，或用 --layer 指定",
           "draws only on layers that are off or frozen: " + names +
               "; right would be one that is on, or --layer");
    }
    const std::string layer = Excerpt(m_strLayer);
    Fail("图层“" + layer + "”上没有图形；应为 " + names + " 之一",
         "draws nothing on layer \"" + layer + "\"; right would be one of " + names);
  }

  // In the model, not on a sheet of paper, and visible.
  static bool IsDrawn(const CEntity& entity) {
    return entity.Value(67) == 0 && entity.Value(60) == 0;
  }

  // The case of a layer's name does not count.
  static std::string Lowered(std::string name) {
    for (char& c : name) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return name;
  }

  // On the layer asked for, or on any that is shown.
  bool IsOnLayer(const CEntity& entity) const {
    const std::string layer = Lowered(entity.m_strLayer);
    return m_strLayer.empty() ? !m_hidden.contains(layer) : layer == Lowered(m_strLayer);
  }

  void Take(const CEntity& entity) {
    const std::string& kind = entity.m_strKind;
    if (kind == "LWPOLYLINE") return TakeLightPolyline(entity);
    if (kind == "CIRCLE") return TakeCircle(entity);
    if (kind == "LINE") return TakeLine(entity);
    if (kind == "ARC") return TakeArc(entity);
    if (std::find(kPassedOver.begin(), kPassedOver.end(), kind) != kPassedOver.end()) return;
    const std::string what = Excerpt(kind);
    FailAt(entity.m_nLine, what + " 不是直线或圆弧；请先分解为多段线",
           what + " is no line or arc; right would be polylines with arcs, circles, lines or arcs" +
               (m_strLayer.empty() ? ", or --layer with theirs" : ""));
  }

  // Entities lie in a plane whose normal points to the reader or away from it; then x is mirrored.
  static bool IsMirrored(const CEntity& entity) {
    const double x = entity.Value(210), y = entity.Value(220), z = entity.Value(230, 1);
    if (std::fabs(x) > 1e-9 || std::fabs(y) > 1e-9) OutOfPlane(entity);
    return z < 0;
  }
  [[noreturn]] static void OutOfPlane(const CEntity& entity) {
    FailAt(
        entity.m_nLine, entity.m_strKind + " 不在 XY 平面内；请画在该平面内",
        entity.m_strKind + " does not lie in the plane of x and y; right would be one drawn in it");
  }

  void Keep(CPath path, bool mirrored) {
    m_nPoints += path.m_arrVertex.size();
    if (m_nPoints > 2 * kMostOutlinePoints) {  // beyond what any joining leaves as few enough
      Fail("多于 100000 点；圆弧请用凸度",
           "has more than 100000 points; right for curves would be arcs (bulges)");
    }
    if (mirrored) {
      for (CVertex& v : path.m_arrVertex) v = {-v.x, v.y, -v.bulge};
    }
    if (!path.m_bClosed && path.m_arrVertex.size() < 2) {
      Fail("有只有一个点的多段线；请画成闭合线",
           "has a polyline of one point; right would be a closed one");
    }
    (path.m_bClosed ? m_arrClosed : m_arrOpen).push_back(std::move(path));
  }

  void TakeLightPolyline(const CEntity& entity) {
    CPath path{{}, (entity.Flags() & 1) != 0};
    for (const CGroup& group : entity.m_arrGroup) {
      if (group.m_nCode == 10) path.m_arrVertex.push_back({Number(group), 0, 0});
      if (path.m_arrVertex.empty()) continue;
      if (group.m_nCode == 20) path.m_arrVertex.back().y = Number(group);
      if (group.m_nCode == 42) path.m_arrVertex.back().bulge = Number(group);
    }
    Keep(std::move(path), IsMirrored(entity));
  }

  void ReadPolyline(const CEntity& polyline, bool wanted) {
    constexpr int kClosed = 1, kOther = 2 | 4 | 8 | 16 | 64;
    CPath path{{}, (polyline.Flags() & kClosed) != 0};
    if (wanted && (polyline.Flags() & kOther) != 0) {
      FailAt(polyline.m_nLine, "POLYLINE 是拟合曲线、三维线或网格；请先分解",
             "POLYLINE is a fitted curve, a line in space or a mesh; right would be a plane one");
    }
    CGroup group;
    CEntity vertex;
    while (m_groups.Next(group)) {
      const bool mine = group.m_nCode == 0 && group.m_strValue == "VERTEX";
      m_groups.PutBack();
      if (!mine || !ReadEntity(vertex)) break;
      if (wanted)
        path.m_arrVertex.push_back({vertex.Value(10), vertex.Value(20), vertex.Value(42)});
    }
    if (wanted) Keep(std::move(path), IsMirrored(polyline));
  }

  void TakeCircle(const CEntity& entity) {
    Keep(CirclePath({entity.Value(10), entity.Value(20)}, Radius(entity)), IsMirrored(entity));
  }

  void TakeLine(const CEntity& entity) {
    if (std::fabs(entity.Value(30) - entity.Value(31)) * m_dMm > kJoin) OutOfPlane(entity);
    Keep(LinePath({entity.Value(10), entity.Value(20)}, {entity.Value(11), entity.Value(21)}),
         false);
  }

  // Counter-clockwise from one angle to the other, as two arcs of at most a half circle.
  void TakeArc(const CEntity& entity) {
    const CPoint center{entity.Value(10), entity.Value(20)};
    const double radius = Radius(entity);
    const double start = entity.Value(50) * std::numbers::pi / 180;
    double sweep = std::fmod((entity.Value(51) - entity.Value(50)) * std::numbers::pi / 180,
                             2 * std::numbers::pi);
    if (sweep <= 1e-12) sweep += 2 * std::numbers::pi;
    const double bulge = Tan(sweep / 8);
    CPath path{{}, false};
    for (const double part : {0.0, 0.5, 1.0}) {
      const double angle = start + part * sweep;
      path.m_arrVertex.push_back(
          {center.x + radius * Cos(angle), center.y + radius * Sin(angle), part < 1 ? bulge : 0});
    }
    Keep(std::move(path), IsMirrored(entity));
  }

  static double Radius(const CEntity& entity) {
    const double radius = entity.Value(40);
    if (!(radius > 0)) {
      FailAt(entity.m_nLine, entity.m_strKind + " 的半径不大于 0",
             entity.m_strKind + ": its radius must be above 0");
    }
    return radius;
  }

  CGroups m_groups;
  const std::string& m_strLayer;
  double m_dMm = 1;
  std::set<std::string> m_hidden;  // layers that are off or frozen
  std::set<std::string> m_left;    // layers with entities that do not count
  std::size_t m_nPoints = 0;
  std::vector<CPath> m_arrClosed;
  std::vector<CPath> m_arrOpen;
};

}  // namespace

std::optional<COutlineFault> ReadDxfOutline(std::string_view text, const std::string& layer,
                                            std::vector<CPath>& loops) {
  loops.clear();
  if (text.substr(0, 30).find("Binary DXF") != text.npos) {
    return COutlineFault{"是二进制 DXF；请另存为 ASCII DXF",
                         "is a binary DXF; right would be an ASCII one"};
  }
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  try {
    loops = CDxfReader(text, layer).Read();
  } catch (const CDxfFault& fault) {
    return fault.m_fault;
  }
  return std::nullopt;
}

}  // namespace orv3
