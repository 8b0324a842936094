#include "pair_rows.h"

#include <cmath>

#include "catalogue/rolled/rolled_style.h"
#include "catalogue_csv.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3::catalogue {
namespace {

// Units cm and its powers, kg/m. Sizes in tables are mm.

double Value(const CDataItem& row, const wchar_t* sign) { return ToDouble(row[sign].m_strValue); }

// The component's columns that make a pair's: those that double because both components' axes
// coincide, the radius of gyration about that axis, and what the axis between the two needs: the
// moment of inertia about the axis parallel to it, the distance of the centroid from the face that
// is turned to the other component, and the size from that face on.
struct CPairSigns {
  std::span<const wchar_t* const> m_arrTwice;
  const wchar_t *m_strRadius, *m_strInertia, *m_strDistance, *m_strSize;
};

constexpr const wchar_t* kTwiceX[] = {L"Ix(cm^4)", L"Wxmax(cm^3)", L"Wxmin(cm^3)"};
constexpr const wchar_t* kTwiceY[] = {L"Iy(cm^4)", L"Wymax(cm^3)", L"Wymin(cm^3)"};
constexpr const wchar_t* kTwiceChannel[] = {L"Ix(cm^4)", L"Wx(cm^3)"};
constexpr CPairSigns kEqual{kTwiceX, L"ix(cm)", L"Ix(cm^4)", L"zo(cm)", L"b(mm)"};
constexpr CPairSigns kLongLegs{kTwiceX, L"ix(cm)", L"Iy(cm^4)", L"xo(cm)", L"b(mm)"};
constexpr CPairSigns kShortLegs{kTwiceY, L"iy(cm)", L"Ix(cm^4)", L"yo(cm)", L"B(mm)"};
constexpr CPairSigns kChannel{kTwiceChannel, L"ix(cm)", L"Iy(cm^4)", L"zo(cm)", L"b(mm)"};

// A row of values, each with the decimals of its kind.
class CPairRow {
 public:
  CPairRow(const CDataItem& component, int decimals) : m_nDecimals(decimals) {
    m_dA = Value(component, L"A(cm^2)");
    Add(2 * m_dA, 3);
    Add(2 * Value(component, L"G(kg/m)"), 3);
  }
  void AddTwice(const CDataItem& component, const wchar_t* sign) {
    Add(2 * Value(component, sign), m_nDecimals);
  }
  void AddSame(const CDataItem& component, const wchar_t* sign) { Add(Value(component, sign), 2); }
  void AddOwnAxis(const CDataItem& component, const CPairSigns& signs) {
    for (const wchar_t* sign : signs.m_arrTwice) AddTwice(component, sign);
    AddSame(component, signs.m_strRadius);
  }

  void AddInertia(double inertia) { Add(inertia, m_nDecimals); }
  void AddRadius(double inertia) { Add(std::sqrt(inertia / (2 * m_dA)), 2); }
  void AddModulus(double inertia, double fibre) { Add(inertia / fibre, m_nDecimals); }

  const CStringArray& Values() const { return m_arrValue; }

 private:
  void Add(double value, int decimals) { m_arrValue.Add(FormatFixed(value, decimals)); }

  int m_nDecimals;
  double m_dA;
  CStringArray m_arrValue;
};

// Back to back; for each gap modulus and radius of gyration about the axis between the two.
template <const CPairSigns& SIGNS>
CStringArray BackToBack(const CDataItem& one, int decimals) {
  CPairRow row(one, decimals);
  row.AddOwnAxis(one, SIGNS);
  for (const double mm : {0, 4, 6, 8, 10, 12, 14, 16, 18, 20}) {
    const double distance = Value(one, SIGNS.m_strDistance) + mm / 20;
    const double inertia =
        2 * (Value(one, SIGNS.m_strInertia) + Value(one, L"A(cm^2)") * distance * distance);
    row.AddModulus(inertia, Value(one, SIGNS.m_strSize) / 10 + mm / 20);
    row.AddRadius(inertia);
  }
  return row.Values();
}

// Heel to heel in opposite quadrants. Y1 runs through both heels and is each angle's axis of
// symmetry Xo whatever the gap; X1 is at right angles to it, at sqrt(2) (zo + gap / 2) from either
// centroid.
CStringArray Cross(const CDataItem& angle, int decimals) {
  CPairRow row(angle, decimals);
  const double A = Value(angle, L"A(cm^2)");
  for (const double mm : {0, 4, 6, 8, 10}) {
    const double leg = Value(angle, L"zo(cm)") + mm / 20;
    const double inertia = 2 * (Value(angle, L"Iyo(cm^4)") + A * 2 * leg * leg);
    row.AddInertia(inertia);
    row.AddRadius(inertia);
  }
  row.AddTwice(angle, L"Ixo(cm^4)");
  row.AddSame(angle, L"ixo(cm)");
  return row.Values();
}

// The flanges' tips touch.
CStringArray ToeToToe(const CDataItem& channel, int decimals) {
  CPairRow row(channel, decimals);
  row.AddOwnAxis(channel, kChannel);
  const double width = Value(channel, L"b(mm)") / 10;
  const double distance = width - Value(channel, L"zo(cm)");
  const double inertia =
      2 * (Value(channel, L"Iy(cm^4)") + Value(channel, L"A(cm^2)") * distance * distance);
  row.AddInertia(inertia);
  row.AddModulus(inertia, width);
  row.AddRadius(inertia);
  return row.Values();
}

constexpr CPairTable kPairs[] = {
    {18, 0, L"2", 2, BackToBack<kEqual>},     {19, 1, L"2", 2, BackToBack<kLongLegs>},
    {20, 1, L"2", 2, BackToBack<kShortLegs>}, {21, 0, L"2", 2, Cross},
    {22, 4, L"2][", 1, BackToBack<kChannel>}, {23, 4, L"2[]", 1, ToeToToe},
    {24, 8, L"2][", 1, BackToBack<kChannel>}, {25, 8, L"2[]", 1, ToeToToe},
};

}  // namespace

std::span<const CPairTable> PairTables() { return kPairs; }

CDataTable MakePairTable(const CPairTable& pair, const CDataTable& components) {
  const CRolledStyle& style = RolledStyles()[static_cast<std::size_t>(pair.m_nStyle)];
  CDataTable table;
  table.SetTableName(style.Name());
  table.m_Title = RolledTitle(style);
  for (const CDataItem& component : components.m_arrItem) {
    CStringArray values;
    values.Add(pair.m_strMarker + component[0].m_strValue);
    values.Append(pair.m_pRow(component, pair.m_nDecimals));
    if (!table.AddTableItem(values, 0))
      throw CCatalogueError(ToUtf8(values[0]) + ": stands twice among the pairs");
  }
  return table;
}

}  // namespace orv3::catalogue
