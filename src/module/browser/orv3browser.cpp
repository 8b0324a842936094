// orv3browser [FOLDER]: opens the section browser and prints the chosen row, UTF-8, one "key=value"
// a line: "table", then each column by its sign.
//
// FOLDER holds the section stores. Without it the user's own copy of the shipped store is opened,
// the one that the command orv3cal uses; it is made at the first start.
//
// Exit status: 0 a row was chosen, 1 none, 2 misuse, 3 trouble with files.
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "dialogs/win32/message_box.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "module/orv3cal_c.h"
#include "platform/command_line.h"
#include "platform/file_system.h"
#include "platform/places.h"
#include "platform/whole_file.h"
#include "tables/file/table_store.h"

namespace {

using namespace orv3;

constexpr int kEveryTable = 0x03000FFF;
constexpr int kRoom = 4096;  // holds any row

enum CExit : int { kChosen = 0, kNone = 1, kMisuse = 2, kFileTrouble = 3 };

[[noreturn]] void Fail(const CString& text) { throw std::runtime_error(ToUtf8(text)); }

[[noreturn]] void Fail(const wchar_t* chinese, const wchar_t* english, const CString& file = {}) {
  Fail(Both(chinese, english, {file}).In(UserLanguage()));
}

CString FolderOf(const CString& path) { return path.Left(path.ReverseFind(L'\\')); }

// The user's folder, with a store in it.
CString UserFolder() {
  if (UserDataFolder().IsEmpty())
    Fail(L"当前用户没有数据文件夹；请给出截面库所在文件夹",
         L"the user has no folder for data; give that of the stores");
  const CString folder = UserDataFolder() + L"\\";
  const CString store = folder + kSystemStore;
  CFileStamp stamp;
  if (Files().Stamp(store, stamp) == CFileError::None) return folder;

  const CString installed = FolderOf(FolderOf(ProgramFile()));
  const CString shipped = installed + L"\\share\\orv3cal\\" + kSystemStore;
  std::string bytes;
  if (ReadWholeFile(shipped, bytes) != CFileError::None)
    Fail(L"{1} 不能读取；请给出截面库所在文件夹",
         L"{1} cannot be read; give the folder of the section stores", shipped);
  if (!MakeFolders(folder) || WriteWholeFile(store, bytes) != CFileError::None)
    Fail(L"{1} 不能写入；请给出可写的截面库文件夹",
         L"{1} cannot be written; give a folder of section stores that can", store);
  return folder;
}

const char16_t* Units(const CString& text) {
  return reinterpret_cast<const char16_t*>(text.GetString());
}

// The text of a function of the C interface; trouble when it fails.
template <class FUNCTION, class... ARGUMENTS>
CString TextOf(FUNCTION function, ARGUMENTS... arguments) {
  std::vector<char16_t> room(kRoom);
  if (function(arguments..., room.data(), kRoom) < 0) {
    orv3_last_error(room.data(), kRoom);
    Fail(reinterpret_cast<const wchar_t*>(room.data()));
  }
  return reinterpret_cast<const wchar_t*>(room.data());
}

int Browse(const CString& folder) {
  if (orv3_open_data(Units(folder)) < 0) Fail(TextOf(orv3_last_error));
  const CString row = TextOf(orv3_browse, kEveryTable);
  if (row.IsEmpty()) return kNone;
  std::printf("%s\n", ToUtf8(row).c_str());
  return kChosen;
}

// On standard error, or in a box where nobody would see that.
void Tell(bool desktop, const std::string& fault) {
  std::fprintf(stderr, "%s\n", fault.c_str());
  if (desktop) ShowMessageBox({{}, FromUtf8(fault)});
}

}  // namespace

int main(int argc, char** argv) {
  const bool desktop = CloseOwnConsole();
  UseUtf8Console();
  const std::vector<std::string> arguments = CommandLineUtf8(argc, argv);
  if (arguments.size() > 2 || (arguments.size() == 2 && arguments[1].starts_with("-"))) {
    const CSentence usage =
        Both(L"用法：orv3browser [FOLDER]   FOLDER：截面库所在文件夹",
             L"usage: orv3browser [FOLDER]   FOLDER: that of the section stores");
    Tell(desktop, ToUtf8(usage.In(UserLanguage())));
    return kMisuse;
  }
  SetMessageHandler(ShowMessageBox);
  try {
    return Browse(arguments.size() == 2 ? FromUtf8(arguments[1]) : UserFolder());
  } catch (const std::exception& error) {
    Tell(desktop, std::string("orv3browser: ") + error.what());
    return kFileTrouble;
  }
}
