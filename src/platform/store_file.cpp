#include "platform/store_file.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>
#include <vector>

#include "framework/language.h"
#include "framework/number_text.h"
#include "platform/per_thread.h"
#include "platform/store_body.h"
#include "platform/store_error.h"

namespace orv3 {
namespace {

using std::chrono::milliseconds;
using CClock = std::chrono::steady_clock;

std::atomic<long long> g_nBusyWait{1000};

// The stores that this thread keeps to itself.
std::vector<std::shared_ptr<CStoreBody>>& HeldBodies() {
  static CPerThread<std::vector<std::shared_ptr<CStoreBody>>> held;
  return held.Here();
}

std::shared_ptr<CStoreBody> HeldBody(const CString& path) {
  const auto& held = HeldBodies();
  if (held.empty()) return nullptr;
  const auto find = [&held](const CString& resolved) {
    const auto found = std::find_if(held.begin(), held.end(), [&resolved](const auto& body) {
      return body->Path() == resolved;
    });
    return found == held.end() ? nullptr : *found;
  };
  if (auto named = find(path)) return named;  // without asking the system
  return find(Files().Resolve(path));
}

std::unique_ptr<CFile> OpenWaiting(const CString& path, CFileMode mode, CFileError& error) {
  const auto end = CClock::now() + BusyWait();
  milliseconds pause{1};
  for (;;) {
    auto file = Files().Open(path, mode, error);
    const auto left = std::chrono::duration_cast<milliseconds>(end - CClock::now());
    if (file || error != CFileError::Busy || left <= milliseconds{0}) return file;
    std::this_thread::sleep_for(std::min(pause, left));
    pause = std::min(pause * 2, milliseconds{10});
  }
}

std::unique_ptr<CFile> OpenFor(const CString& path, bool toWrite, CFileError& error) {
  const CFileMode mode = toWrite ? CFileMode::ReadWrite : CFileMode::Read;
  auto file = OpenWaiting(path, mode, error);
  if (file || !toWrite || error != CFileError::Denied) return file;
  return Files().ClearReadOnly(path) ? OpenWaiting(path, mode, error) : nullptr;
}

void Explain(CFileError error, const CString& path) {
  if (Files().IsFolder(path)) {
    SetStoreError(
        CStoreTrouble::Failed, path,
        Say(L"{1}: 是文件夹，应为文件", L"{1}: it is a folder; right would be a file", {path}));
    return;
  }
  const CString wait = FormatInt(BusyWait().count());
  switch (error) {
    case CFileError::NotFound:
      SetStoreError(CStoreTrouble::NotFound, path,
                    Say(L"{1}: 文件不存在", L"{1}: not found", {path}));
      break;
    case CFileError::Busy:
      SetStoreError(
          CStoreTrouble::Busy, path,
          Say(L"{1}: 被其他程序占用已超过 {2} ms；请稍后再试",
              L"{1}: in use elsewhere for more than {2} ms; try again later", {path, wait}));
      break;
    case CFileError::Denied:
      SetStoreError(
          CStoreTrouble::Denied, path,
          Say(L"{1}: 没有访问权限；文件及其文件夹应对当前用户开放",
              L"{1}: access denied; the file and its folder must be open to this user", {path}));
      break;
    case CFileError::Full:
      SetStoreError(CStoreTrouble::Failed, path,
                    Say(L"{1}: 没有建立，磁盘已满", L"{1}: not made, the disk is full", {path}));
      break;
    case CFileError::NotAFile:
      SetStoreError(CStoreTrouble::Failed, path,
                    Say(L"{1}: 是管道或设备，应为文件",
                        L"{1}: it is a pipe or a device; right would be a file", {path}));
      break;
    case CFileError::BadPath:
      SetStoreError(
          CStoreTrouble::Failed, path,
          Say(L"{1}: 不能打开，名称过长或链接循环",
              L"{1}: cannot be opened, its name is too long or its links lead in a circle",
              {path}));
      break;
    case CFileError::Failed:
    case CFileError::None:
      SetStoreError(CStoreTrouble::Failed, path,
                    Say(L"{1}: 不能打开或读取", L"{1}: cannot be opened or read", {path}));
      break;
  }
}

std::shared_ptr<CStoreBody> OpenBody(const CString& path, bool toWrite) {
  const CString resolved = Files().Resolve(path);
  CFileError error{};
  auto file = OpenFor(resolved, toWrite, error);
  if (file) {
    auto body = std::make_shared<CStoreBody>(std::move(file), resolved, toWrite);
    if (body->Recover()) return body;
  }
  Explain(error, path);
  return nullptr;
}

// A reader that meets an interrupted save lets a writer undo it, if one can be had.
std::shared_ptr<CStoreBody> OpenBodyToRead(const CString& path) {
  auto body = OpenBody(path, false);
  if (!body || !body->RecoveredInMemory()) return body;
  body.reset();
  if (auto writer = OpenBody(path, true)) return writer;
  ClearStoreError();
  return OpenBody(path, false);
}

bool NotWritten(const CStoreBody& body) {
  CString text = Say(L"{1}: 写入失败", L"{1}: writing failed", {body.Path()});
  if (body.Trouble() == CFileError::Full) text += Say(L"，磁盘已满", L", the disk is full");
  if (body.Trouble() == CFileError::Denied)
    text += Say(L"，文件夹只读", L", its folder is read-only");
  text += body.IsBroken()
              ? Say(L"；下次打开时库是完整的，为保存之前的内容，或已全部写入时为保存之后的内容",
                    L"; whoever opens the store next finds it whole, as before the "
                    L"save or, where all of it got through, as after it")
              : Say(L"；库没有改变", L"; the store is as it was before");
  return SetStoreError(CStoreTrouble::Failed, body.Path(), text) != 0;
}

}  // namespace

milliseconds BusyWait() { return milliseconds{g_nBusyWait.load()}; }

void SetBusyWait(milliseconds wait) { g_nBusyWait = std::max<long long>(0, wait.count()); }

CStoreFile::CStoreFile(std::shared_ptr<CStoreBody> body) : m_pBody(std::move(body)) {}

CStoreFile::~CStoreFile() { m_pBody->DropChanges(); }

std::unique_ptr<CStoreFile> CStoreFile::Held(const CString& path) {
  auto body = HeldBody(path);
  return body ? std::unique_ptr<CStoreFile>(new CStoreFile(std::move(body))) : nullptr;
}

std::unique_ptr<CStoreFile> CStoreFile::OpenToRead(const CString& path) {
  if (auto held = Held(path)) return held;
  auto body = OpenBodyToRead(path);
  return body ? std::unique_ptr<CStoreFile>(new CStoreFile(std::move(body))) : nullptr;
}

std::unique_ptr<CStoreFile> CStoreFile::OpenToWrite(const CString& path) {
  if (auto held = Held(path)) return held;
  auto body = OpenBody(path, true);
  return body ? std::unique_ptr<CStoreFile>(new CStoreFile(std::move(body))) : nullptr;
}

std::uint64_t CStoreFile::Size() const { return m_pBody->Size(); }

bool CStoreFile::Read(std::uint64_t offset, void* data, std::size_t size) const {
  return m_pBody->Read(offset, data, size);
}

bool CStoreFile::Write(std::uint64_t offset, const void* data, std::size_t size) {
  return m_pBody->IsWritable() && m_pBody->Write(offset, data, size);
}

bool CStoreFile::Commit() { return m_pBody->Commit() || NotWritten(*m_pBody); }

const CFileStamp& CStoreFile::Stamp() const { return m_pBody->Stamp(); }

CStoreState CStoreFile::State() const { return {Stamp(), m_pBody->LastChange()}; }

const CString& CStoreFile::Path() const { return m_pBody->Path(); }

CStoreLock::CStoreLock(const CString& path) {
  ClearStoreError();
  const auto file = CStoreFile::OpenToWrite(path);
  if (!file) return;
  m_pBody = file->m_pBody;
  HeldBodies().push_back(m_pBody);
}

CStoreLock::~CStoreLock() {
  auto& held = HeldBodies();
  const auto it = std::find(held.rbegin(), held.rend(), m_pBody);
  if (m_pBody && it != held.rend()) held.erase(std::next(it).base());
}

CStoreBatch::CStoreBatch(const CString& path) : CStoreLock(path) {
  if (m_pBody) m_pBody->Gather();
}

CStoreBatch::~CStoreBatch() {
  if (m_pBody) m_pBody->DropGathered();
}

bool CStoreBatch::Commit() {
  return m_pBody && (m_pBody->CommitGathered() || NotWritten(*m_pBody));
}

void RemoveJournal(const CString& path) { Files().Remove(JournalPath(Files().Resolve(path))); }

bool StateOfStore(const CString& path, CStoreState& state) {
  if (const auto body = HeldBody(path); body && body->LastChange() != 0) {
    state = {body->Stamp(), body->LastChange()};
    return true;
  }
  state.m_nChange = 0;
  return Files().Stamp(path, state.m_stamp) == CFileError::None;
}

}  // namespace orv3
