// ThreadSanitizer reports a race between Qt threads, and no false race where Qt synchronises.
#include <gmock/gmock.h>

#include "support/process.h"

namespace {

using testing::HasSubstr;

/// ThreadSanitizer's exit status after a report.
constexpr int kReported = 66;

test::Outcome Count(std::string const& way) {
  test::Process::Options options;
  options.arguments = {SHARED_COUNT, way};
  // With GLib, posting an event writes to a descriptor, which ThreadSanitizer sees without our
  // help.
  options.environment = {{"QT_NO_GLIB", "1"}};
  return test::Run(options);
}

class Race : public testing::TestWithParam<char const*> {};
class Order : public testing::TestWithParam<char const*> {};

TEST_P(Race, IsReported) {
  test::Outcome const run = Count(GetParam());
  EXPECT_EQ(run.status, kReported);
  EXPECT_THAT(run.err, HasSubstr("WARNING: ThreadSanitizer: data race"));
  EXPECT_THAT(run.err, HasSubstr("shared-count.cpp"));
}
INSTANTIATE_TEST_SUITE_P(Ways, Race,
                         testing::Values("no-order-after-signal", "no-order-after-event",
                                         "no-lock-on-main"));

TEST_P(Order, IsNotReported) {
  test::Outcome const run = Count(GetParam());
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "");
}
INSTANTIATE_TEST_SUITE_P(Ways, Order,
                         testing::Values("signal", "event", "mutex", "condition", "start-and-end"));

}  // namespace
