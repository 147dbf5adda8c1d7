#include "bank/fd.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace obsdesk {

Fd Fd::open(const std::filesystem::path& file, int flags, unsigned mode) noexcept {
  return Fd(::open(file.c_str(), flags | O_CLOEXEC, static_cast<mode_t>(mode)));
}

int Fd::close() noexcept {
  const int fd = std::exchange(fd_, -1);
  if (fd < 0) return 0;
  return ::close(fd) == 0 ? 0 : errno;
}

void Fd::reset() noexcept {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

}  // namespace obsdesk
