#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace tavrelin {

/// The superuser may write anywhere; while this lives he is nobody.
class OrdinaryUser {
 public:
  OrdinaryUser() : before_(geteuid()) {
    constexpr uid_t Nobody = 65534;
    if (before_ == 0 && seteuid(Nobody) != 0) ADD_FAILURE() << "still the superuser";
  }
  ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  uid_t before_;
};

}  // namespace tavrelin
