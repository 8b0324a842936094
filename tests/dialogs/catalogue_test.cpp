// The browser on the shipped catalogue.
#include <gtest/gtest.h>

#include "dialog_store.h"
#include "dialogs/model/browser_model.h"
#include "scripted_user.h"

namespace {

using namespace orv3;

class CatalogueBrowser : public testing::Test {
 protected:
  CatalogueBrowser() {
    PutBytes(m_store.StorePath(), Bytes(Shipped(kSystemStore)));
    m_model = std::make_unique<CBrowserModel>(m_store.Path(), CDialogStore::AllNames(), CDataItem(),
                                              m_user);
    m_model->Open();
  }
  static CString Shipped(const CString& name) { return FromUtf8(ORV3CAL_CATALOGUE) + L"/" + name; }
  void Select(const CString& table) {
    for (std::size_t i = 0; i < m_model->Tree().size(); ++i) {
      if (m_model->Tree()[i].m_strText == table) m_model->SelectNode(static_cast<int>(i));
    }
  }

  CDialogStore m_store;
  CScriptedUser m_user;
  std::unique_ptr<CBrowserModel> m_model;
};

// Every user-defined style and lattice column starts with a section that can be kept as it stands.
TEST_F(CatalogueBrowser, DefaultSectionsCanBeAdded) {
  for (const CTreeNode& node : m_model->Tree()) {
    if (!node.m_bTable || !CLoadDataTable::IsTableNameType(node.m_strText, kUserTables)) continue;
    Select(node.m_strText);
    const int before = m_model->ItemCount();
    m_user.m_fnProperty = [this](CPropertyModel& model) {
      const int number = model.Row().GetSignIndex(L"No.");
      model.SetValue(number, L"NEW");
      return model.Ok(m_user);
    };
    m_model->Add();
    EXPECT_EQ(m_model->ItemCount(), before + 1) << ToUtf8(node.m_strText);
    ASSERT_TRUE(m_model->Ok());
    EXPECT_GT(CLoadDataTable::GetDataItemArea(m_model->ChosenRow()), 0) << ToUtf8(node.m_strText);
  }
  EXPECT_TRUE(m_user.TakeMessages().empty());
}

}  // namespace
