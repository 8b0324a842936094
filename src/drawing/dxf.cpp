// DXF release 2000: sections of groups, each a code and a value on lines of their own. Programs
// refuse a file without the tables, blocks and objects below, empty as they are here.
#include "drawing/dxf.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

// The fixed parts: "code value" groups parted by "|", each object on a line of its own. Codes 5 and
// 330 are handles, hexadecimal and different for every object; the model space's is 1F.
constexpr unsigned kFirstEntity = 0x100;

constexpr std::string_view kLineTypesToStyles =
    "0 TABLE|2 LTYPE|5 5|330 0|100 AcDbSymbolTable|70 3|"
    "0 LTYPE|5 14|330 5|100 AcDbSymbolTableRecord|100 AcDbLinetypeTableRecord|2 ByBlock|70 0|"
    "3 |72 65|73 0|40 0.0|"
    "0 LTYPE|5 15|330 5|100 AcDbSymbolTableRecord|100 AcDbLinetypeTableRecord|2 ByLayer|70 0|"
    "3 |72 65|73 0|40 0.0|"
    "0 LTYPE|5 16|330 5|100 AcDbSymbolTableRecord|100 AcDbLinetypeTableRecord|2 Continuous|"
    "70 0|3 Solid line|72 65|73 0|40 0.0|0 ENDTAB|"
    "0 TABLE|2 LAYER|5 2|330 0|100 AcDbSymbolTable|70 2|"
    "0 LAYER|5 10|330 2|100 AcDbSymbolTableRecord|100 AcDbLayerTableRecord|2 0|70 0|62 7|"
    "6 Continuous|390 F|"
    "0 LAYER|5 30|330 2|100 AcDbSymbolTableRecord|100 AcDbLayerTableRecord|2 SECTION|70 0|62 7|"
    "6 Continuous|390 F|0 ENDTAB|"
    "0 TABLE|2 STYLE|5 3|330 0|100 AcDbSymbolTable|70 1|"
    "0 STYLE|5 11|330 3|100 AcDbSymbolTableRecord|100 AcDbTextStyleTableRecord|2 Standard|70 0|"
    "40 0.0|41 1.0|50 0.0|71 0|42 2.5|3 txt|4 |0 ENDTAB";

constexpr std::string_view kViewsToBlocks =
    "0 TABLE|2 VIEW|5 6|330 0|100 AcDbSymbolTable|70 0|0 ENDTAB|"
    "0 TABLE|2 UCS|5 7|330 0|100 AcDbSymbolTable|70 0|0 ENDTAB|"
    "0 TABLE|2 APPID|5 9|330 0|100 AcDbSymbolTable|70 1|"
    "0 APPID|5 12|330 9|100 AcDbSymbolTableRecord|100 AcDbRegAppTableRecord|2 ACAD|70 0|"
    "0 ENDTAB|"
    "0 TABLE|2 DIMSTYLE|5 A|330 0|100 AcDbSymbolTable|70 1|100 AcDbDimStyleTable|71 1|340 27|"
    "0 DIMSTYLE|105 27|330 A|100 AcDbSymbolTableRecord|100 AcDbDimStyleTableRecord|2 Standard|"
    "70 0|340 11|0 ENDTAB|"
    "0 TABLE|2 BLOCK_RECORD|5 1|330 0|100 AcDbSymbolTable|70 2|"
    "0 BLOCK_RECORD|5 1F|330 1|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|"
    "2 *Model_Space|340 22|"
    "0 BLOCK_RECORD|5 1B|330 1|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|"
    "2 *Paper_Space|340 1E|0 ENDTAB|0 ENDSEC|"
    "0 SECTION|2 BLOCKS|"
    "0 BLOCK|5 20|330 1F|100 AcDbEntity|8 0|100 AcDbBlockBegin|2 *Model_Space|70 0|10 0.0|"
    "20 0.0|30 0.0|3 *Model_Space|1 |0 ENDBLK|5 21|330 1F|100 AcDbEntity|8 0|100 AcDbBlockEnd|"
    "0 BLOCK|5 1C|330 1B|100 AcDbEntity|67 1|8 0|100 AcDbBlockBegin|2 *Paper_Space|70 0|10 0.0|"
    "20 0.0|30 0.0|3 *Paper_Space|1 |"
    "0 ENDBLK|5 1D|330 1B|100 AcDbEntity|67 1|8 0|100 AcDbBlockEnd|0 ENDSEC";

// The root dictionary and, under it, groups, the two layouts and the plot style.
constexpr std::string_view kObjects =
    "0 SECTION|2 OBJECTS|"
    "0 DICTIONARY|5 C|330 0|100 AcDbDictionary|281 1|3 ACAD_GROUP|350 D|3 ACAD_LAYOUT|350 1A|"
    "3 ACAD_PLOTSTYLENAME|350 E|"
    "0 DICTIONARY|5 D|330 C|100 AcDbDictionary|281 1|"
    "0 DICTIONARY|5 1A|330 C|100 AcDbDictionary|281 1|3 Layout1|350 1E|3 Model|350 22|"
    "0 LAYOUT|5 1E|330 1A|100 AcDbPlotSettings|1 |2 none_device|4 |6 |70 688|72 0|73 0|74 5|7 |"
    "75 16|100 AcDbLayout|1 Layout1|70 1|71 1|330 1B|"
    "0 LAYOUT|5 22|330 1A|100 AcDbPlotSettings|1 |2 none_device|4 |6 |70 1712|72 0|73 0|74 0|"
    "7 |75 0|100 AcDbLayout|1 Model|70 1|71 0|330 1F|"
    "0 ACDBDICTIONARYWDFLT|5 E|330 C|100 AcDbDictionary|281 1|3 Normal|350 F|"
    "100 AcDbDictionaryWithDefault|340 F|"
    "0 ACDBPLACEHOLDER|5 F|330 E|0 ENDSEC|"
    "0 EOF";

std::string Hex(unsigned value) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (; value > 0; value /= 16) text.insert(text.begin(), digits[value % 16]);
  return text;
}

class CDxfWriter {
 public:
  explicit CDxfWriter(std::span<const CPath> paths) : m_paths(paths), m_box(PathBounds(paths)) {}

  std::string Write() {
    Header();
    Groups("0 SECTION|2 CLASSES|0 ENDSEC|0 SECTION|2 TABLES");
    View();
    Groups(kLineTypesToStyles);
    Groups(kViewsToBlocks);
    Groups("0 SECTION|2 ENTITIES");
    for (std::size_t i = 0; i < m_paths.size(); ++i) Polyline(m_paths[i], i);
    Groups("0 ENDSEC");
    Groups(kObjects);
    return std::move(m_strText);
  }

 private:
  void Group(int code, const std::string& value) {
    m_strText += std::to_string(code) + "\r\n" + value + "\r\n";
  }
  void Groups(std::string_view groups) {
    while (!groups.empty()) {
      const std::string_view group = groups.substr(0, groups.find('|'));
      const std::size_t space = group.find(' ');
      m_strText.append(group.substr(0, space)).append("\r\n");
      m_strText.append(group.substr(space + 1)).append("\r\n");
      groups.remove_prefix(std::min(groups.size(), group.size() + 1));
    }
  }
  // A real number shows itself by its point.
  void Real(int code, double value) {
    std::string text = ToUtf8(FormatShortest(std::fabs(value) < 1e-9 ? 0 : value));
    if (text.find_first_of(".eE") == std::string::npos) text += ".0";
    Group(code, text);
  }
  void Point(int code, double x, double y) {
    Real(code, x);
    Real(code + 10, y);
  }
  // Millimetres, metric.
  void Header() {
    Groups("0 SECTION|2 HEADER|9 $ACADVER|1 AC1015|9 $DWGCODEPAGE|3 ANSI_1252|9 $HANDSEED");
    Group(5, Hex(kFirstEntity + static_cast<unsigned>(m_paths.size())));
    Groups("9 $INSUNITS|70 4|9 $MEASUREMENT|70 1|9 $EXTMIN");
    Point(10, m_box.left, m_box.bottom);
    Real(30, 0);
    Groups("9 $EXTMAX");
    Point(10, m_box.right, m_box.top);
    Real(30, 0);
    Groups("0 ENDSEC");
  }

  // The view that the file opens with.
  void View() {
    Groups(
        "0 TABLE|2 VPORT|5 8|330 0|100 AcDbSymbolTable|70 1|"
        "0 VPORT|5 29|330 8|100 AcDbSymbolTableRecord|100 AcDbViewportTableRecord|2 *Active|70 0");
    Point(10, 0, 0);
    Point(11, 1, 1);
    Point(12, (m_box.left + m_box.right) / 2, (m_box.bottom + m_box.top) / 2);
    Point(13, 0, 0);
    Point(14, 10, 10);
    Point(15, 10, 10);
    Point(16, 0, 0);
    Real(36, 1);
    Point(17, 0, 0);
    Real(37, 0);
    Real(40, std::max({1.0, 1.2 * m_box.Height(), 0.8 * m_box.Width()}));  // height shown
    Real(41, 1.5);                                                         // width to height
    Real(42, 50);
    Groups("0 ENDTAB");
  }

  void Polyline(const CPath& path, std::size_t number) {
    Group(0, "LWPOLYLINE");
    Group(5, Hex(kFirstEntity + static_cast<unsigned>(number)));
    Groups("330 1F|100 AcDbEntity|8 SECTION|100 AcDbPolyline");
    Group(90, std::to_string(path.m_arrVertex.size()));
    Group(70, path.m_bClosed ? "1" : "0");
    for (const CVertex& v : path.m_arrVertex) {
      Point(10, v.x, v.y);
      if (v.bulge != 0) Real(42, v.bulge);
    }
  }

  std::span<const CPath> m_paths;
  CBox m_box;
  std::string m_strText;
};

}  // namespace

std::string PathsDxf(std::span<const CPath> paths) { return CDxfWriter(paths).Write(); }

}  // namespace orv3
