#include "platform/places.h"

#include <cstdlib>
#include <filesystem>

#include "framework/utf8.h"

namespace orv3 {

CString ProgramFile() {
  std::error_code error;
  return FromUtf8(std::filesystem::read_symlink("/proc/self/exe", error).string());
}

CString UserDataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && *data == '/') return FromUtf8(std::string(data) + "/orv3cal");
  const char* home = std::getenv("HOME");
  return home && *home ? FromUtf8(std::string(home) + "/.local/share/orv3cal") : CString();
}

}  // namespace orv3
