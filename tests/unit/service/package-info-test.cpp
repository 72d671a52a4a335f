#include "service/package-info.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <QCoreApplication>

namespace {

TEST(PackageInfo, ComposesItsFivePathsWhetherOrNotTheyExist) {
  setenv("HOME", "/no/such/home", 1);
  std::string const app = QCoreApplication::applicationDirPath().toStdString();

  PackageInfo const info;

  EXPECT_EQ(info.images_path.c_str(), app + "/images");
  EXPECT_STREQ(info.log_path.c_str(), "/no/such/home/.Larkmoor_log");
  EXPECT_EQ(info.debug_marker_path.c_str(), app + "/log/launcher.debug");
  EXPECT_EQ(info.package_path.c_str(), app + "/package/larkmoor.lpk");
  EXPECT_EQ(info.conf_path.c_str(), app + "/conf");
}

}  // namespace
