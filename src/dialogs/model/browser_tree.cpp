#include "dialogs/model/browser_tree.h"

#include "dialogs/model/dialog_texts.h"
#include "sections/load_data_table.h"
#include "sections/table_types.h"

namespace orv3 {
namespace {

struct CTreeFamily {
  const wchar_t* m_szText;
  int m_nType;
  int m_nImage;
};

constexpr CTreeFamily kCatalogueFamilies[] = {
    {L"工字钢、H型钢", TABLE_FAMILY_I, 0},
    {L"方钢管", TABLE_FAMILY_BOX, 2},
    {L"T型钢", TABLE_FAMILY_T, 3},
    {L"槽钢", TABLE_FAMILY_CHANNEL, 4},
    {L"Z型钢", TABLE_FAMILY_Z, 6},
    {L"圆钢管", TABLE_FAMILY_ROUND, 8},
    {L"角钢", TABLE_FAMILY_ANGLE, 9},
    {L"角钢组合", TABLE_FAMILY_ANGLE_PAIR, 12},
    {L"槽钢组合", TABLE_FAMILY_CHANNEL_PAIR, 16},
};

constexpr CTreeFamily kCustomFamilies[] = {
    {L"工字形截面", TABLE_FAMILY_I, 0},      {L"箱形截面", TABLE_FAMILY_BOX, 2},
    {L"十字形截面", TABLE_FAMILY_CROSS, 18}, {L"T形截面", TABLE_FAMILY_T, 3},
    {L"槽形截面", TABLE_FAMILY_CHANNEL, 4},  {L"Z形截面", TABLE_FAMILY_Z, 20},
    {L"圆形截面", TABLE_FAMILY_ROUND, 8},    {L"L形截面", TABLE_FAMILY_ANGLE, 10},
    {L"多边形截面", TABLE_FAMILY_SOLID, 22}, {L"格构柱", TABLE_FAMILY_LATTICE, 25},
};

class CTreeMaker {
 public:
  explicit CTreeMaker(const CStringArray& names) : m_arrName(names) {}

  template <std::size_t COUNT>
  void AddRoot(const wchar_t* text, int source, const CTreeFamily (&families)[COUNT]) {
    const int root = Add({text, families[0].m_nImage, -1, false});
    for (const CTreeFamily& family : families) AddFamily(root, source, family);
  }

  std::vector<CTreeNode> m_arrNode;

 private:
  int Add(CTreeNode node) {
    m_arrNode.push_back(std::move(node));
    return static_cast<int>(m_arrNode.size()) - 1;
  }

  void AddFamily(int root, int source, const CTreeFamily& family) {
    const int parent = Add({family.m_szText, family.m_nImage, root, false});
    CStringArray tables;
    CLoadDataTable::SelectTableNameArray(source | family.m_nType, m_arrName, tables);
    for (const CString& name : tables) {
      Add({name, CLoadDataTable::GetItemIcon(name), parent, true});
    }
  }

  const CStringArray& m_arrName;
};

}  // namespace

std::vector<CTreeNode> BrowserTree(const CStringArray& tableNames) {
  CTreeMaker maker(tableNames);
  maker.AddRoot(texts::kCatalogueRoot, TABLE_ROLLED, kCatalogueFamilies);
  maker.AddRoot(texts::kCustomRoot, TABLE_CUSTOM, kCustomFamilies);
  return std::move(maker.m_arrNode);
}

}  // namespace orv3
