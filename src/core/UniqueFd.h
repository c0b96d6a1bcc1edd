/// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

class UniqueFd {
 public:
  UniqueFd() = default;
  /// Takes ownership of @p fd; a negative value means none.
  explicit UniqueFd(int fd) : m_fd(fd) {}
  UniqueFd(UniqueFd&& other) noexcept : m_fd(other.release()) {}
  UniqueFd& operator=(UniqueFd&& other) noexcept {
    reset(other.release());
    return *this;
  }
  UniqueFd(const UniqueFd&) = delete;
  UniqueFd& operator=(const UniqueFd&) = delete;
  ~UniqueFd() { reset(); }

  [[nodiscard]] int get() const { return m_fd; }
  [[nodiscard]] explicit operator bool() const { return m_fd >= 0; }
  [[nodiscard]] int release() { return std::exchange(m_fd, -1); }
  void reset(int fd = -1) {
    if (m_fd >= 0) ::close(m_fd);
    m_fd = fd;
  }

 private:
  int m_fd = -1;
};
