#include "input/outline_input.h"

#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "input/input.h"
#include "input/json_fault.h"
#include "outlines/dxf_outline.h"
#include "outlines/loop_nesting.h"
#include "outlines/outline_check.h"
#include "outlines/touching_parts.h"
#include "output/output.h"
#include "platform/code_page.h"

namespace orv3::cli {
namespace {

constexpr std::uint64_t kLongestFile = std::uint64_t{64} << 20;

[[noreturn]] void Refuse(const std::string& path, const std::string& what) {
  cli::Refuse(path + ": " + what);
}

struct CUnit {
  std::string_view m_strName;
  double m_dMm;
};
constexpr CUnit kUnits[] = {{"mm", 1}, {"cm", 10}, {"m", 1000}, {"in", 25.4}};

// Takes what the JSON parser finds, value by value, so that no file costs more than its points.
class COutlineJson : public nlohmann::json_sax<CJson> {
 public:
  explicit COutlineJson(const std::string& path) : m_strPath(path) {}

  std::vector<CPath> Loops() {
    if (!m_bLoops) {
      Fault(Say("缺少 \"loops\"",
                "lacks \"loops\"; right would be "
                "{\"unit\": \"mm\", \"loops\": [[[x, y], ...], ...]}"));
    }
    for (CPath& loop : m_arrLoop) {
      for (CVertex& v : loop.m_arrVertex) v = {v.x * m_dMm, v.y * m_dMm, v.bulge};
    }
    return std::move(m_arrLoop);
  }

  bool null() override { return Other("null"); }
  bool boolean(bool value) override { return Other(value ? "true" : "false"); }
  bool number_integer(number_integer_t value) override {
    return Number(static_cast<double>(value));
  }
  bool number_unsigned(number_unsigned_t value) override {
    return Number(static_cast<double>(value));
  }
  bool number_float(number_float_t value, const string_t&) override { return Number(value); }
  bool binary(binary_t&) override { return false; }
  bool string(string_t& value) override {
    if (m_nDepth != 1 || m_strKey != "unit") return Other("\"" + Excerpt(value) + "\"");
    for (const CUnit& unit : kUnits) {
      if (value != unit.m_strName) continue;
      m_dMm = unit.m_dMm;
      return true;
    }
    Fault(Say("\"unit\"：不支持“{1}”；请用 mm、cm、m 或 in",
              "\"unit\": \"{1}\" is not taken; right would be mm, cm, m or in", {Excerpt(value)}));
  }
  bool start_object(std::size_t) override {
    if (m_nDepth > 0) return Other("{…}");
    ++m_nDepth;
    return true;
  }
  bool key(string_t& key) override {
    m_strKey = key;
    bool* seen = key == "unit" ? &m_bUnit : key == "loops" ? &m_bLoops : nullptr;
    if (seen == nullptr) {
      Fault(Say("\"{1}\"：没有这个键；请用 \"unit\" 和 \"loops\"",
                "\"{1}\" is no key of an outline; right would be \"unit\" and \"loops\"",
                {Excerpt(key)}));
    }
    if (std::exchange(*seen, true)) {
      Fault(Say("\"{1}\" 出现两次；只能出现一次", "\"{1}\" stands twice; right would be once",
                {key}));
    }
    return true;
  }
  bool end_object() override {
    --m_nDepth;
    return true;
  }
  bool start_array(std::size_t) override {
    if (m_nDepth == 0 || m_strKey != "loops" || m_nDepth >= kPoint) return Other("[…]");
    if (++m_nDepth == kLoop) m_arrLoop.emplace_back();
    if (m_nDepth == kPoint) m_nNumbers = 0;
    if (m_arrLoop.size() > kMostOutlinePoints) TooMany();
    return true;
  }
  bool end_array() override {
    if (m_nDepth == kPoint) EndPoint();
    --m_nDepth;
    return true;
  }
  bool parse_error(std::size_t, const std::string& token,
                   const nlohmann::detail::exception& error) override {
    Fault(Say(JsonFault(token, error)));
  }

 private:
  // How many brackets are open within a loop and within a point.
  static constexpr int kLoop = 3, kPoint = 4;

  [[noreturn]] void Fault(const std::string& what) const { Refuse(m_strPath, what); }
  [[noreturn]] void TooMany() const {
    Fault(Say("多于 100000 点；圆弧请用凸度",
              "has more than 100000 points; right for curves would be arcs (bulges)"));
  }

  // "loop 2, point 3"
  std::string Place() const {
    const std::string loop = std::to_string(m_arrLoop.size());
    if (m_arrLoop.empty()) return "\"loops\"";
    const std::string point = std::to_string(m_arrLoop.back().m_arrVertex.size() + 1);
    return Say("第 {1} 圈第 {2} 点", "loop {1}, point {2}", {loop, point});
  }

  bool Other(const std::string& what) {
    if (m_nDepth == 0) {
      Fault(Say("没有轮廓；请给出 {\"unit\": \"mm\", \"loops\": [...]}",
                "holds no outline; right would be {\"unit\": \"mm\", \"loops\": [...]}"));
    }
    if (m_nDepth == 1 && m_strKey == "unit") {
      Fault(Say("\"unit\"：{1} 不可用；请用 \"mm\"、\"cm\"、\"m\" 或 \"in\"",
                "\"unit\": {1} is no unit; right would be \"mm\", \"cm\", \"m\" or \"in\"",
                {what}));
    }
    const std::string place = m_nDepth == 1 ? "\"" + m_strKey + "\"" : Place();
    Fault(Say("{1}：{2} 不可用；每点为 [x, y] 或 [x, y, 凸度]",
              "{1}: {2} is not possible; right would be points [x, y] or [x, y, bulge]",
              {place, what}));
  }

  bool Number(double value) {
    if (m_nDepth != kPoint) return Other(NumberText(value));
    if (m_nNumbers == m_arrNumber.size()) {
      Fault(Say("{1}：多于三个数；每点为 [x, y] 或 [x, y, 凸度]",
                "{1}: has more than three numbers; right would be [x, y] or [x, y, bulge]",
                {Place()}));
    }
    m_arrNumber[m_nNumbers++] = value;
    return true;
  }

  void EndPoint() {
    if (m_nNumbers < 2) {
      Fault(Say("{1}：少于两个数；每点为 [x, y] 或 [x, y, 凸度]",
                "{1}: has fewer than two numbers; right would be [x, y] or [x, y, bulge]",
                {Place()}));
    }
    if (++m_nPoints > kMostOutlinePoints) TooMany();
    const double bulge = m_nNumbers > 2 ? m_arrNumber[2] : 0;
    m_arrLoop.back().m_arrVertex.push_back({m_arrNumber[0], m_arrNumber[1], bulge});
  }

  const std::string& m_strPath;
  double m_dMm = 1;
  bool m_bUnit = false, m_bLoops = false;
  int m_nDepth = 0;
  std::string m_strKey;
  std::array<double, 3> m_arrNumber{};
  std::size_t m_nNumbers = 0;
  std::size_t m_nPoints = 0;
  std::vector<CPath> m_arrLoop;
};

bool IsDxf(const std::string& path, std::string_view bytes) {
  if (path.size() > 4) {
    std::string end = path.substr(path.size() - 4);
    for (char& ch : end) ch = ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch;
    if (end == ".dxf") return true;
    if (path.ends_with(".json")) return false;
  }
  const std::size_t first = bytes.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
  return first != bytes.npos && bytes[first] != '{' && bytes[first] != '[';
}

std::vector<CPath> LoopsOf(const std::string& path, const std::string& layer) {
  const std::string bytes = ReadInput(path, kLongestFile);
  if (bytes.size() > kLongestFile) {
    Refuse(path, Say("大于 64 MB；请只给出轮廓",
                     "is larger than 64 MB; right would be an outline alone"));
  }
  if (!IsDxf(path, bytes)) {
    if (!layer.empty()) {
      cli::Refuse(Say("--layer：只用于 DXF 文件", "--layer is for DXF files only"));
    }
    COutlineJson json(path);
    CJson::sax_parse(bytes, &json);
    return json.Loops();
  }
  // Before release 2007 the names of layers are of the ANSI code page.
  const std::string text = IsUtf8(bytes) ? bytes : ToUtf8(FromAnsi(bytes));
  std::vector<CPath> loops;
  if (const auto fault = ReadDxfOutline(text, layer, loops)) Refuse(path, Say(*fault));
  return loops;
}

}  // namespace

COutlineInput ReadOutline(const std::string& path, const std::string& layer) {
  std::vector<CPath> loops = LoopsOf(path, layer);
  std::optional<std::vector<CPath>> cleared;
  if (const auto fault = CheckLoops(loops)) {
    cleared = PartsCleared(loops);
    if (!cleared) Refuse(path, Say(*fault));
  }
  const std::vector<CLoopPlace> places = NestLoops(cleared ? *cleared : loops);
  if (places.empty()) Refuse(path, Say(TooCloseFault()));
  const CBox box = PathBounds(loops);
  const auto placed = [&](std::vector<CPath> given) {
    given = Sensed(std::move(given), places);
    for (CPath& loop : given) loop = Moved(std::move(loop), -box.left, -box.bottom);
    return given;
  };
  COutlineInput input{placed(std::move(loops)), {box.left, box.bottom}, {}};
  if (cleared) input.cleared = placed(std::move(*cleared));
  return input;
}

}  // namespace orv3::cli
