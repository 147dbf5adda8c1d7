// A descriptor of an open file, folder or lock, closed on every way out.
#pragma once

#include <filesystem>
#include <utility>

namespace obsdesk {

class Fd {
 public:
  Fd() = default;
  explicit Fd(int fd) noexcept : fd_(fd) {}
  // The file opened with these flags (close-on-exec added); an empty Fd, with
  // errno telling why, when it cannot be opened.
  static Fd open(const std::filesystem::path& file, int flags, unsigned mode = 0644) noexcept;
  ~Fd() { reset(); }
  Fd(Fd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Fd& operator=(Fd&& other) noexcept {
    if (this != &other) {
      reset();
      fd_ = std::exchange(other.fd_, -1);
    }
    return *this;
  }
  Fd(const Fd&) = delete;
  Fd& operator=(const Fd&) = delete;

  int get() const noexcept { return fd_; }
  explicit operator bool() const noexcept { return fd_ >= 0; }
  // Closes now and gives the system's error number, 0 when the close went well.
  // A failed close can mean written bytes never reached the file, so a writer
  // must look at it; the destructor's close is for the ways out by an error.
  [[nodiscard]] int close() noexcept;

 private:
  void reset() noexcept;
  int fd_ = -1;
};

}  // namespace obsdesk
