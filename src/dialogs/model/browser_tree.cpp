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
    {texts::kRolledI, TABLE_FAMILY_I, 0},
    {texts::kRolledBox, TABLE_FAMILY_BOX, 2},
    {texts::kRolledT, TABLE_FAMILY_T, 3},
    {texts::kRolledChannel, TABLE_FAMILY_CHANNEL, 4},
    {texts::kRolledZ, TABLE_FAMILY_Z, 6},
    {texts::kRolledTube, TABLE_FAMILY_ROUND, 8},
    {texts::kRolledAngle, TABLE_FAMILY_ANGLE, 9},
    {texts::kAnglePair, TABLE_FAMILY_ANGLE_PAIR, 12},
    {texts::kChannelPair, TABLE_FAMILY_CHANNEL_PAIR, 16},
};

constexpr CTreeFamily kCustomFamilies[] = {
    {texts::kOwnI, TABLE_FAMILY_I, 0},
    {texts::kOwnBox, TABLE_FAMILY_BOX, 2},
    {texts::kOwnCross, TABLE_FAMILY_CROSS, 18},
    {texts::kOwnT, TABLE_FAMILY_T, 3},
    {texts::kOwnChannel, TABLE_FAMILY_CHANNEL, 4},
    {texts::kOwnZ, TABLE_FAMILY_Z, 20},
    {texts::kOwnRound, TABLE_FAMILY_ROUND, 8},
    {texts::kOwnL, TABLE_FAMILY_ANGLE, 10},
    {texts::kOwnPolygon, TABLE_FAMILY_SOLID, 22},
    {texts::kOwnLattice, TABLE_FAMILY_LATTICE, 25},
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
