// The macOS side of platform/bundle.h uses only Qt, so it runs here too.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

#include "platform/bundle.h"
#include "support/files.h"

namespace fs = std::filesystem;

namespace {

/// Receives the requests to open a URL.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
  ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

  std::vector<std::string> opened;

 public slots:
  void Open(QUrl const& url) { opened.push_back(url.toLocalFile().toStdString()); }
};

class BundleOnMac : public testing::Test {
 protected:
  test::TempDir folder;

 private:
  test::WorkingFolder const here_{folder.path()};
};

TEST_F(BundleOnMac, CannotBeUnregisteredWithoutTheTool) {
  EXPECT_NE(platform::ForgetBundle(QStringLiteral("/x/Larkmoor.app")), 0);
}

TEST_F(BundleOnMac, IsUnregisteredByTheTool) {
  test::WriteFile(folder / "registration-tool",
                  "#!/bin/sh\necho \"$#:$1:$2\" > arguments\nexit 4\n");
  chmod("registration-tool", 0755);
  EXPECT_EQ(platform::ForgetBundle(QStringLiteral("/x/Larkmoor.app")), 4);
  EXPECT_EQ(test::ReadFile(folder / "arguments"), "2:-u:/x/Larkmoor.app\n");
}

TEST_F(BundleOnMac, IsOpenedByTheDesktop) {
  Desktop desktop;
  EXPECT_TRUE(platform::OpenBundle(QStringLiteral("/x y/Larkmoor.app")));
  EXPECT_THAT(desktop.opened, testing::ElementsAre("/x y/Larkmoor.app"));
}

}  // namespace

#include "bundle-mac-test.moc"
