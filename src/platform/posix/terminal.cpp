#include "platform/terminal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace orv3 {

bool ErrorIsTerminal() noexcept { return isatty(STDERR_FILENO) == 1; }

bool OutputIsTerminal() noexcept { return isatty(STDOUT_FILENO) == 1; }

CErrorSilence::CErrorSilence() noexcept : m_nKept(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3)) {
  const int nowhere = m_nKept < 0 ? -1 : ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nowhere < 0) return;
  std::fflush(stderr);
  ::dup2(nowhere, STDERR_FILENO);
  ::close(nowhere);
}

CErrorSilence::~CErrorSilence() {
  if (m_nKept < 0) return;
  std::fflush(stderr);
  ::dup2(m_nKept, STDERR_FILENO);
  ::close(m_nKept);
}

}  // namespace orv3
