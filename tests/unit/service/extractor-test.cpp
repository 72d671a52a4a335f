#include "service/extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>

#include <QObject>

#include "launcher/notify-adapter.h"
#include "localisation/str-table.h"
#include "support/archive-builder.h"
#include "support/files.h"
#include "support/log-capture.h"
#include "support/volume-flushes.h"

namespace {

using test::Entry;
using test::MakeArchive;
using test::ReadFile;
using test::WriteFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;

class ExtractorTest : public testing::Test {
 protected:
  ExtractorTest() {
    StrTable::InitStrTable();
    std::filesystem::create_directories(Destination());
    extractor.package_path = Package().c_str();
    extractor.dest_path = Destination().c_str();
    auto* const adapter = Notify_Adapter::GetInstance();
    QObject::connect(adapter, &Notify_Adapter::sigUpdateProgress, &context,
                     [this](int total, int current) { progress.emplace_back(total, current); });
    QObject::connect(adapter, &Notify_Adapter::sigUpdateDialogText, &context,
                     [this](QString const& text) { labels.push_back(text.toStdString()); });
  }

  std::string Package() const { return folder / "package"; }
  std::string Destination() const { return folder / "installed"; }
  void Carry(std::vector<Entry> const& entries) { WriteFile(Package(), MakeArchive(entries)); }

  test::TempDir folder;
  test::LogCapture log;
  QObject context;
  test::VolumeFlushes flushes;
  std::vector<std::pair<int, int>> progress;
  std::vector<std::string> labels;
  Extractor extractor;
};

TEST_F(ExtractorTest, UnpacksFilesFoldersAndSymlinksWithTheirModes) {
  Carry({Entry::Folder("d"), Entry::File("d/plain", "text"), Entry::File("d/run", "#!", 0755),
         Entry::Link("d/link", "plain"), Entry::File("deep/er/still", "made on the way")});

  EXPECT_EQ(extractor.Extract(), 0);

  test::Tree const tree = test::ReadTree(Destination());
  EXPECT_EQ(tree.size(), 7U);
  EXPECT_EQ(tree.at("d/plain"), (test::Node{'f', 0644, "text"}));
  EXPECT_EQ(tree.at("d/run"), (test::Node{'f', 0755, "#!"}));
  EXPECT_EQ(tree.at("d/link"), (test::Node{'l', 0, "plain"}));
  EXPECT_EQ(tree.at("deep/er/still").content, "made on the way");
}

TEST_F(ExtractorTest, ReadsEveryFormatAndFilterThatTheLibraryDetects) {
  for (char const* format : {"gnutar", "pax", "ustar", "cpio", "zip", "7zip"}) {
    WriteFile(Package(), MakeArchive({Entry::File("a", format)}, format));
    EXPECT_EQ(extractor.Extract(), 0) << format;
    EXPECT_EQ(ReadFile(Destination() + "/a"), format);
  }
  for (char const* filter : {"gzip", "bzip2", "xz", "zstd", "lz4"}) {
    WriteFile(Package(), MakeArchive({Entry::File("a", filter)}, "gnutar", filter));
    EXPECT_EQ(extractor.Extract(), 0) << filter;
    EXPECT_EQ(ReadFile(Destination() + "/a"), filter);
  }
}

TEST_F(ExtractorTest, SendsOneNotificationPerEntryTotalFirst) {
  Carry({Entry::Folder("a"), Entry::File("a/b", "1"), Entry::Link("a/c", "b")});

  EXPECT_EQ(extractor.Extract(), 0);

  EXPECT_THAT(progress, ElementsAre(Pair(3, 1), Pair(3, 2), Pair(3, 3)));
  EXPECT_THAT(labels, ElementsAre("Larkmoor Drive is initializing..."));
}

TEST_F(ExtractorTest, FlushesTheVolumeOnceAllButTheLastEntryAreWritten) {
  Carry({Entry::Folder("a"), Entry::File("a/b", "1"), Entry::File("last", "2")});
  std::vector<std::string> flushed;
  flushes.seen = [&](std::string const& path) {
    flushed.push_back(path);
    EXPECT_THAT(progress, ElementsAre(Pair(3, 1), Pair(3, 2)));
    EXPECT_EQ(ReadFile(Destination() + "/a/b"), "1");
    EXPECT_FALSE(std::filesystem::exists(Destination() + "/last"));
  };
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_THAT(flushed, ElementsAre(Destination()));
}

TEST_F(ExtractorTest, FlushesTheVolumeBeforeAnOnlyEntry) {
  Carry({Entry::File("a", "1")});
  int flushed = 0;
  flushes.seen = [&](std::string const&) {
    ++flushed;
    EXPECT_THAT(test::ReadTree(Destination()), IsEmpty());
  };
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_EQ(flushed, 1);
}

TEST_F(ExtractorTest, FlushesNothingIfItStopsBeforeTheLastEntry) {
  Carry({Entry::File("../outside", "1"), Entry::File("last", "2")});
  flushes.seen = [](std::string const&) { ADD_FAILURE(); };
  EXPECT_EQ(extractor.Extract(), -1);
}

TEST_F(ExtractorTest, UnpacksEvenIfTheFlushFails) {
  Carry({Entry::File("a", "1"), Entry::File("b", "2")});
  flushes.fail = true;
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_THAT(progress, ElementsAre(Pair(2, 1), Pair(2, 2)));
  EXPECT_EQ(ReadFile(Destination() + "/b"), "2");
  EXPECT_EQ(log.Lines().size(), 1U);
}

TEST_F(ExtractorTest, LogsWhatItUnpacksAndWhere) {
  Carry({Entry::File("a", "1")});
  extractor.Extract();
  EXPECT_THAT(log.Lines(), ElementsAre("[DEBUG] extractor(0): decompress from '" + Package() +
                                       "' to '" + Destination() + "'"));
}

TEST_F(ExtractorTest, RejectsAnEmptyPackagePathWithoutSettingTheLabel) {
  extractor.package_path = "";
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_THAT(labels, IsEmpty());
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] extractor(0): Invalid Argument"));
}

TEST_F(ExtractorTest, RejectsAnEmptyDestination) {
  Carry({Entry::File("a", "1")});
  extractor.dest_path = "";
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_EQ(extractor.Count(), -1);
  EXPECT_THAT(labels, IsEmpty());
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] extractor(0): Invalid Argument",
                                       "[ERROR] extractor(0): Invalid argument"));
}

TEST_F(ExtractorTest, SetsTheLabelAndReportsACountOfMinusOneForAMissingPackage) {
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_THAT(labels, ElementsAre("Larkmoor Drive is initializing..."));
  EXPECT_THAT(
      log.Lines(),
      ElementsAre(StartsWith("[DEBUG] extractor(0): decompress from"),
                  "[ERROR] extractor(0): archive_read_open_filename failed: 'Failed to open '" +
                      Package() + "''",
                  "[ERROR] extractor(0): Failed to calculate total file numbers, ret: -1"));
}

TEST_F(ExtractorTest, TreatsAnArchiveWithoutEntriesAsAFailure) {
  Carry({});
  EXPECT_EQ(extractor.Count(), 0);
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_EQ(log.Lines().back(),
            "[ERROR] extractor(0): Failed to calculate total file numbers, ret: 0");
}

TEST_F(ExtractorTest, FailsOnAFileThatIsNotAnArchive) {
  WriteFile(Package(), std::string(5000, 'x'));
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_THAT(progress, IsEmpty());
}

TEST_F(ExtractorTest, RejectsAnEntryWithDotDotAndStops) {
  Carry({Entry::File("first", "1"), Entry::File("../outside", "2"), Entry::File("last", "3")});

  EXPECT_EQ(extractor.Extract(), -1);

  EXPECT_FALSE(std::filesystem::exists(folder / "outside"));
  EXPECT_TRUE(std::filesystem::exists(Destination() + "/first"));
  EXPECT_FALSE(std::filesystem::exists(Destination() + "/last"));
  EXPECT_THAT(progress, ElementsAre(Pair(3, 1)));
  EXPECT_THAT(log.Lines().back(),
              StartsWith("[ERROR] extractor(0): archive_read_extract2 failed: 'Path contains"));
}

TEST_F(ExtractorTest, RejectsEveryEntryIfTheDestinationContainsDotDot) {
  Carry({Entry::File("a", "1")});
  extractor.dest_path = (Destination() + "/../installed").c_str();
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_THAT(test::ReadTree(Destination()), IsEmpty());
}

TEST_F(ExtractorTest, UnpacksAnAbsolutePathBelowTheDestination) {
  Carry({Entry::File("/etc/larkmoor-test", "1")});
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_EQ(ReadFile(Destination() + "/etc/larkmoor-test"), "1");
  EXPECT_FALSE(std::filesystem::exists("/etc/larkmoor-test"));
}

TEST_F(ExtractorTest, ReplacesAFileInTheWayWithoutWritingThroughIt) {
  WriteFile(Destination() + "/a", "the old and longer text");
  WriteFile(folder / "kept", "untouched");
  std::filesystem::create_hard_link(Destination() + "/a", folder / "twin");
  std::filesystem::create_symlink(folder / "kept", Destination() + "/b");
  Carry({Entry::File("a", "new"), Entry::File("b", "not through the link")});

  EXPECT_EQ(extractor.Extract(), 0);

  EXPECT_EQ(ReadFile(Destination() + "/a"), "new");
  EXPECT_EQ(ReadFile(folder / "twin"), "the old and longer text");
  EXPECT_EQ(ReadFile(folder / "kept"), "untouched");
  EXPECT_EQ(test::ReadTree(Destination()).at("b").type, 'f');
}

TEST_F(ExtractorTest, CountsATruncatedArchiveAndFailsAtTheDamage) {
  std::vector<Entry> entries;
  for (int i = 0; i < 20; ++i) entries.push_back(Entry::File("f" + std::to_string(i), "x"));
  // Each entry has a block of header and one of data; half a header follows the tenth entry.
  WriteFile(Package(), MakeArchive(entries).substr(0, 10 * 1024 + 256));

  EXPECT_EQ(extractor.Count(), 10);
  EXPECT_THAT(log.Lines(), IsEmpty());
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_EQ(progress.size(), 10U);
  EXPECT_THAT(log.Lines().back(),
              StartsWith("[ERROR] extractor(0): archive_read_next_header failed: 'Truncated"));
}

TEST_F(ExtractorTest, FailsInTheMiddleOfAFileWhoseDataIsMissing) {
  Carry({Entry::File("a", "1"), Entry::File("b", std::string(100000, 'b'))});
  std::filesystem::resize_file(Package(), 20000);
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_THAT(log.Lines().back(),
              StartsWith("[ERROR] extractor(0): archive_read_extract2 failed: '"));
  EXPECT_TRUE(std::filesystem::exists(Destination() + "/a"));
}

TEST_F(ExtractorTest, KeepsTheTargetOfAHardLinkAsInTheArchive) {
  WriteFile(folder / "target", "outside");
  Carry({Entry::HardLink("link", folder / "target")});
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_TRUE(std::filesystem::equivalent(Destination() + "/link", folder / "target"));
}

TEST_F(ExtractorTest, RestoresNeitherTimesNorSetUserIdBits) {
  Carry({Entry::File("a", "1", 04755)});
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_EQ(test::ReadTree(Destination()).at("a").mode, 0755U);
}

TEST_F(ExtractorTest, FailsWhenAnEntryCannotBeWritten) {
  // A file can't replace a nonempty folder.
  WriteFile(Destination() + "/a/b", "in the way");
  Carry({Entry::File("a", "1")});
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_THAT(log.Lines().back(),
              StartsWith("[ERROR] extractor(0): archive_read_extract2 failed: 'Could not unlink"));
}

TEST_F(ExtractorTest, ListPrintsOnePathPerLine) {
  Carry({Entry::Folder("d"), Entry::File("d/a", "1")});
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "d/\nd/a\n");
}

TEST_F(ExtractorTest, ListLogsAnEmptyPathAndTriesToOpenIt) {
  Carry({Entry::File("a", "1")});
  extractor.dest_path = "";
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "a\n");
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] extractor(0): Invalid argument"));
}

TEST_F(ExtractorTest, ListReportsADamagedArchiveAsListed) {
  Carry({Entry::File("a", std::string(600, 'a')), Entry::File("b", "1")});
  std::filesystem::resize_file(Package(), 700);
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "a\n");
}

TEST_F(ExtractorTest, ListFailsWhenThePackageCannotBeOpened) {
  EXPECT_EQ(extractor.List(), -1);
  EXPECT_THAT(
      log.Lines(),
      ElementsAre(StartsWith("[ERROR] extractor(0): archive_read_open_filename failed: '")));
}

/// A reader of the package and a writer to disk, before the first entry.
struct Copying {
  explicit Copying(std::string const& package)
      : reader(archive_read_new()), writer(archive_write_disk_new()) {
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    EXPECT_EQ(archive_read_open_filename(reader, package.c_str(), 10240), ARCHIVE_OK);
  }
  ~Copying() {
    archive_read_free(reader);
    archive_write_free(writer);
  }
  archive* reader;
  archive* writer;
};

TEST_F(ExtractorTest, CopyDataCopiesTheCurrentEntry) {
  std::string const bytes(300000, 'q');
  Carry({Entry::File("a", bytes)});
  {
    Copying copying(Package());
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(copying.reader, &entry), ARCHIVE_OK);
    archive_entry_set_pathname(entry, (Destination() + "/a").c_str());
    ASSERT_EQ(archive_write_header(copying.writer, entry), ARCHIVE_OK);
    EXPECT_EQ(extractor.copy_data(copying.reader, copying.writer), 0);
  }
  EXPECT_EQ(ReadFile(Destination() + "/a"), bytes);
}

TEST_F(ExtractorTest, CopyDataRejectsNull) {
  Carry({Entry::File("a", "1")});
  Copying copying(Package());
  EXPECT_EQ(extractor.copy_data(nullptr, copying.writer), -1);
  EXPECT_EQ(extractor.copy_data(copying.reader, nullptr), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] extractor(0): Invalid Argument",
                                       "[ERROR] extractor(0): Invalid Argument"));
}

TEST_F(ExtractorTest, CopyDataReportsMissingData) {
  Carry({Entry::File("a", std::string(100000, 'a'))});
  std::filesystem::resize_file(Package(), 20000);
  Copying copying(Package());
  archive_entry* entry = nullptr;
  ASSERT_EQ(archive_read_next_header(copying.reader, &entry), ARCHIVE_OK);
  archive_entry_set_pathname(entry, (Destination() + "/a").c_str());
  ASSERT_EQ(archive_write_header(copying.writer, entry), ARCHIVE_OK);
  EXPECT_EQ(extractor.copy_data(copying.reader, copying.writer), -1);
  EXPECT_THAT(log.Lines(),
              ElementsAre(StartsWith("[ERROR] extractor(0): archive_read_data_block failed: '")));
}

TEST_F(ExtractorTest, CopyDataReportsAFailedWrite) {
  Carry({Entry::File("a", "too much")});
  Copying copying(Package());
  archive_entry* entry = nullptr;
  ASSERT_EQ(archive_read_next_header(copying.reader, &entry), ARCHIVE_OK);
  archive_entry_set_pathname(entry, (Destination() + "/a").c_str());
  archive_entry_set_size(entry, 2);
  ASSERT_EQ(archive_write_header(copying.writer, entry), ARCHIVE_OK);
  EXPECT_EQ(extractor.copy_data(copying.reader, copying.writer), -1);
  EXPECT_THAT(log.Lines(),
              ElementsAre(StartsWith("[ERROR] extractor(0): archive_write_data_block failed: '")));
}

}  // namespace
