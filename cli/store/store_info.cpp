// orv3cal store info, verify: what a table file holds and whether it is whole.

#include <memory>
#include <string>

#include "catalogue/import/contradicting_rows.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "output/output.h"
#include "output/text_table.h"
#include "platform/store_error.h"
#include "store/store_commands.h"
#include "store/store_place.h"
#include "tables/file/store_check.h"

namespace orv3::cli {
namespace {

struct CStoreInfoOptions {
  std::string file;
  bool json = false;
  CStoreOptions store;
};

// The file that is named, as with --store; the store that other commands read otherwise.
CStoreOptions Place(const CStoreInfoOptions& options) {
  CStoreOptions place = options.store;
  if (options.file.empty()) return place;
  if (!place.store.empty()) {
    Refuse(Say("FILE 与 --store 都给出了文件；请只给一个",
               "FILE and --store both name a file; right would be one"));
  }
  place.store = options.file;
  return place;
}

[[noreturn]] void FailAsTold() {
  throw CCommandError(CExit::FileTrouble, ToUtf8(LastStoreError().m_strText));
}

const char* KindName(int kind) {
  static constexpr const char* kNames[] = {"system", "user", "current"};
  return kind >= 0 && kind < 3 ? kNames[kind] : "unknown";
}

CJson InfoJson(const CStoreOptions& place, const CStoreInfo& info) {
  CJson tables = CJson::array();
  for (const CStoreTable& table : info.m_arrTable) {
    tables.push_back({{"name", ToUtf8(table.m_strName)},
                      {"columns", table.m_nColumns},
                      {"rows", table.m_nRows},
                      {"deleted", table.m_nDeleted},
                      {"slot", table.m_nSlot},
                      {"blocks", table.m_arrBlock}});
  }
  CJson json = WhichStoreJson(place);
  json["kind"] = KindName(info.m_nKind);
  json["line"] = ToUtf8(info.m_strLine);
  json["tables"] = tables;
  return json;
}

// What the edit states that rows have on file mean.
std::string StateName(int state) {
  switch (state) {
    case 0:
      return Say("自有", "own");
    case 4:
      return Say("目录", "catalogue");
    case -1:
      return Say("已删除", "deleted");
    default:
      return Say("其他 ({1})", "other ({1})", {std::to_string(state)});
  }
}

std::string States(const CStoreTable& table) {
  std::string text;
  for (const auto& [state, rows] : table.m_mapState) {
    text += (text.empty() ? "" : ", ") + std::to_string(rows) + " " + StateName(state);
  }
  return text;
}

void PrintInfo(const CStoreOptions& place, const CStoreInfo& info) {
  static constexpr CTextLiteral kKinds[] = {
      {"系统库", "system"}, {"用户库", "user"}, {"当前库", "current"}};
  const bool known = info.m_nKind >= 0 && info.m_nKind < 3;
  const std::string kind =
      known ? kKinds[info.m_nKind].In(MessageLanguage()) : Say("不明", "unknown");
  Print(Say("库      {1}\n种类    {2}\n信息行  {3}\n还可放  {4} 个表\n\n",
            "store       {1}\nkind        {2}\ninformation {3}\nroom for    {4} more tables\n\n",
            {WhichStore(place), kind, ToUtf8(info.m_strLine), std::to_string(info.m_nFreeTables)}));
  CTextTable table(
      {CAlign::Left, CAlign::Right, CAlign::Right, CAlign::Left, CAlign::Right, CAlign::Right});
  table.AddRow({Say("表", "table"), Say("列", "columns"), Say("行", "rows"),
                Say("其中", "of which"), Say("槽长", "slot"), Say("块", "blocks")});
  table.AddRule();
  for (const CStoreTable& stored : info.m_arrTable) {
    table.AddRow({ToUtf8(stored.m_strName), std::to_string(stored.m_nColumns),
                  std::to_string(stored.m_nRows), States(stored), std::to_string(stored.m_nSlot),
                  std::to_string(stored.m_arrBlock.size())});
  }
  Print(table.Text());
}

void RunInfo(const CStoreInfoOptions& options) {
  const CStoreOptions place = Place(options);
  CStoreInfo info;
  if (!ReadStoreInfo(StoreToRead(place), info)) FailAsTold();
  if (options.json) {
    PrintJson(InfoJson(place, info));
  } else {
    PrintInfo(place, info);
  }
}

CJson FaultsJson(const std::vector<CStoreFault>& faults) {
  CJson list = CJson::array();
  for (const CStoreFault& fault : faults) {
    list.push_back({{"table", ToUtf8(fault.m_strTable)},
                    {"offset", fault.m_nOffset},
                    {"what", ToUtf8(fault.m_strWhat)}});
  }
  return list;
}

void PrintFaults(const std::string& kind, const std::vector<CStoreFault>& faults) {
  for (const CStoreFault& fault : faults) {
    const std::string table = fault.m_strTable.IsEmpty()
                                  ? Say("文件", "file")
                                  : Say("表 {1}", "table {1}", {ToUtf8(fault.m_strTable)});
    Print(kind +
          Say("{1}，在第 {2} 字节处：{3}", "{1}, at {2}: {3}",
              {table, std::to_string(fault.m_nOffset), ToUtf8(fault.m_strWhat)}) +
          "\n");
  }
}

void RunVerify(const CStoreInfoOptions& options) {
  std::vector<CStoreFault> faults;
  std::vector<CStoreFault> notes;
  const CString store = StoreNamed(Place(options));
  if (!VerifyStore(store, faults, &notes)) FailAsTold();
  const std::vector<CStoreFault> doubtful = ContradictingRows(store);
  notes.insert(notes.end(), doubtful.begin(), doubtful.end());
  if (options.json) {
    PrintJson(
        {{"ok", faults.empty()}, {"faults", FaultsJson(faults)}, {"notes", FaultsJson(notes)}});
  } else {
    if (faults.empty()) Print(Say("完好：没有发现错误\n", "whole: no fault found\n"));
    PrintFaults("", faults);
    PrintFaults(Say("注意：", "note: "), notes);
  }
  if (!faults.empty()) throw CExit::FileTrouble;
}

void Add(CLI::App& store, const char* name, const std::string& what,
         void (*run)(const CStoreInfoOptions&)) {
  auto options = std::make_shared<CStoreInfoOptions>();
  CLI::App* command = store.add_subcommand(name, what);
  command->add_option("FILE", options->file,
                      Say("截面库文件（.KDB）；不给时为其他命令所读的库",
                          "A table file (.KDB); without one the store that other commands read"));
  command->add_flag("--json", options->json, Say("以 JSON 输出", "As JSON"));
  AddStoreOptions(*command, options->store);
  command->callback([options, run] { run(*options); });
}

}  // namespace

void AddStoreInfoCommands(CLI::App& store) {
  Add(store, "info", Say("显示截面库文件的内容", "Tell what a table file holds"), RunInfo);
  Add(store, "verify",
      Say("检查文件的错误；有错误时退出状态为 3",
          "Look for faults; exit status 3 when there is one"),
      RunVerify);
}

}  // namespace orv3::cli
