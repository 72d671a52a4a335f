#include "support/unprivileged.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace test {

namespace {

constexpr unsigned kNobody = 65534;

bool DropPrivileges() {
  return geteuid() != 0 ||
         (setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0);
}

}  // namespace

void RunUnprivileged(std::function<void()> const& body) {
  std::fflush(nullptr);
  pid_t const child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    EXPECT_TRUE(DropPrivileges());
    if (!testing::Test::HasFailure()) body();
    std::fflush(nullptr);
    _exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = -1;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "in the child, status " << status;
}

void GiveAway(char const* path) {
  if (geteuid() != 0) return;
  ASSERT_EQ(chown(path, kNobody, kNobody), 0) << path;
}

}  // namespace test
