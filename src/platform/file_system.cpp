#include "platform/file_system.h"

#include <atomic>

namespace orv3 {
namespace {

std::atomic<CFileSystem*> g_pFiles{nullptr};

}  // namespace

CFileSystem& Files() {
  CFileSystem* files = g_pFiles.load();
  return files ? *files : SystemFiles();
}

CFileSystem* SetFiles(CFileSystem* files) { return g_pFiles.exchange(files); }

}  // namespace orv3
