#pragma once

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>

namespace tavrelin {

/// While it lives, no file of this process grows beyond a size: a write that would ends half way,
/// as on a disk that fills up.
class FileLimit {
 public:
  explicit FileLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
    struct rlimit small = before_;
    small.rlim_cur = bytes;
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  }
  ~FileLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileLimit(const FileLimit&) = delete;
  FileLimit& operator=(const FileLimit&) = delete;

 private:
  struct rlimit before_ {};
  void (*handler_)(int);
};

}  // namespace tavrelin
