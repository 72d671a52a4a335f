// The extractor's calls of libarchive, and its reaction to results that no package on disk can
// cause.
#include <archive.h>
#include <archive_entry.h>
#include <dlfcn.h>
#include <gmock/gmock.h>

#include <QObject>
#include <algorithm>
#include <cerrno>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "launcher/notify-adapter.h"
#include "localisation/str-table.h"
#include "service/extractor.h"
#include "support/archive-builder.h"
#include "support/files.h"
#include "support/log-capture.h"
#include "support/volume-flushes.h"

namespace {

/// The calls so far, and the one that is to fail.
struct Calls {
  std::vector<std::string> made;
  std::string failing;
  int failing_at = 0;  ///< 1 for the first call of that name
  bool has_reason = true;
  int depth = 0;
} the_calls;

/// Records a call. Calls within libarchive aren't recorded.
class Call {
 public:
  explicit Call(std::string const& name, std::string const& detail = "") {
    if (the_calls.depth++ > 0) return;
    the_calls.made.push_back(name + detail);
    fails_ = name == the_calls.failing && --the_calls.failing_at == 0;
  }
  ~Call() { --the_calls.depth; }
  Call(Call const&) = delete;
  Call& operator=(Call const&) = delete;

  bool fails() const { return fails_; }

 private:
  bool fails_ = false;
};

/// The library's function that this program's own hides.
template <class Function>
Function* Library(char const* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <class Result, class... Arguments>
Result* Pointer(char const* name, Arguments... arguments) {
  Call const call(name);
  return call.fails() ? nullptr : Library<Result*(Arguments...)>(name)(arguments...);
}

/// The injected failure is only a warning: nothing but ARCHIVE_OK may pass.
int Status(Call const& call, archive* failing, int result) {
  if (!call.fails()) return result;
  archive_clear_error(failing);
  if (the_calls.has_reason) archive_set_error(failing, ENOSPC, "made to fail");
  return ARCHIVE_WARN;
}

int Plain(char const* name, archive* a) {
  Call const call(name);
  return Status(call, a, Library<int(archive*)>(name)(a));
}

}  // namespace

extern "C" {

archive* archive_read_new() { return Pointer<archive>("archive_read_new"); }
archive* archive_write_disk_new() { return Pointer<archive>("archive_write_disk_new"); }
char const* archive_entry_pathname(archive_entry* entry) {
  return Pointer<char const>("archive_entry_pathname", entry);
}

int archive_read_support_filter_all(archive* a) {
  return Plain("archive_read_support_filter_all", a);
}
int archive_read_support_compression_all(archive* a) {
  return Plain("archive_read_support_compression_all", a);
}
int archive_read_support_format_all(archive* a) {
  return Plain("archive_read_support_format_all", a);
}
int archive_read_data_skip(archive* a) { return Plain("archive_read_data_skip", a); }
int archive_write_finish_entry(archive* a) { return Plain("archive_write_finish_entry", a); }
int archive_read_close(archive* a) { return Plain("archive_read_close", a); }
int archive_write_close(archive* a) { return Plain("archive_write_close", a); }
int archive_read_free(archive* a) { return Plain("archive_read_free", a); }
int archive_write_free(archive* a) { return Plain("archive_write_free", a); }

int archive_write_disk_set_options(archive* a, int flags) {
  char const* const name = "archive_write_disk_set_options";
  Call const call(name, " " + std::to_string(flags));
  return Status(call, a, Library<int(archive*, int)>(name)(a, flags));
}

int archive_read_open_filename(archive* a, char const* file, size_t block_size) {
  char const* const name = "archive_read_open_filename";
  Call const call(name, " " + std::to_string(block_size));
  return Status(call, a, Library<int(archive*, char const*, size_t)>(name)(a, file, block_size));
}

int archive_read_next_header(archive* a, archive_entry** entry) {
  char const* const name = "archive_read_next_header";
  Call const call(name);
  return Status(call, a, Library<int(archive*, archive_entry**)>(name)(a, entry));
}

int archive_read_extract2(archive* reader, archive_entry* entry, archive* writer) {
  char const* const name = "archive_read_extract2";
  Call const call(name);
  return Status(call, writer,
                Library<int(archive*, archive_entry*, archive*)>(name)(reader, entry, writer));
}

}  // extern "C"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

class ExtractorFault : public testing::Test {
 protected:
  ExtractorFault() {
    StrTable::InitStrTable();
    std::filesystem::create_directory(folder / "installed");
    test::WriteFile(folder / "package", test::MakeArchive({test::Entry::File("a", "1")}));
    extractor.package_path = (folder / "package").c_str();
    extractor.dest_path = (folder / "installed").c_str();
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &context,
                     [](int, int) { the_calls.made.push_back("progress"); });
    flushes.seen = [this](std::string const& path) {
      the_calls.made.push_back("flush" + path.substr(folder.path().string().size()));
    };
    the_calls = Calls();
  }
  ~ExtractorFault() override { the_calls.failing.clear(); }

  static void FailAt(std::string const& name, int at) {
    the_calls.failing = name;
    the_calls.failing_at = at;
  }
  static std::ptrdiff_t Made(std::string const& name) {
    return std::count(the_calls.made.begin(), the_calls.made.end(), name);
  }
  /// The log of an extraction after its first line.
  Lines LinesOfAFailedExtraction() {
    EXPECT_EQ(extractor.Extract(), -1);
    Lines lines = log.Lines();
    lines.erase(lines.begin());
    return lines;
  }

  test::TempDir folder;
  test::LogCapture log;
  QObject context;
  test::VolumeFlushes flushes;
  Extractor extractor;
};

TEST_F(ExtractorFault, CountsThenExtractsWithTheseSettingsAndNeverClosesExplicitly) {
  EXPECT_EQ(extractor.Extract(), 0);
  EXPECT_THAT(
      the_calls.made,
      ElementsAre("archive_read_new", "archive_read_support_filter_all",
                  "archive_read_support_format_all", "archive_read_open_filename 10240",
                  "archive_read_next_header", "archive_read_data_skip", "archive_read_next_header",
                  "archive_read_free",  // end of the count
                  "archive_read_new", "archive_write_disk_new",
                  "archive_write_disk_set_options 8720", "archive_read_support_compression_all",
                  "archive_read_support_format_all", "archive_read_open_filename 10240",
                  "archive_read_next_header", "archive_entry_pathname", "flush/installed",
                  "archive_read_extract2", "progress", "archive_write_finish_entry",
                  "archive_read_next_header", "archive_read_free", "archive_write_free"));
}

TEST_F(ExtractorFault, LogsThatItCannotCountWithoutAReader) {
  FailAt("archive_read_new", 1);
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): Allocate archive failed",
                          "[ERROR] extractor(0): Failed to calculate total file numbers, ret: -1"));
}

TEST_F(ExtractorFault, NeedsASecondReaderForTheExtraction) {
  FailAt("archive_read_new", 2);
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): Allocate extractor failed"));
  EXPECT_EQ(Made("archive_write_disk_new"), 0);
}

TEST_F(ExtractorFault, FreesTheReaderWhenThereIsNoWriter) {
  FailAt("archive_write_disk_new", 1);
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): Allocate extractor failed"));
  EXPECT_EQ(Made("archive_read_free"), Made("archive_read_new"));
  EXPECT_EQ(Made("archive_write_free"), 0);
}

TEST_F(ExtractorFault, LogsAPackageThatOpensOnlyForTheCount) {
  FailAt("archive_read_open_filename", 2);
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): Failed to read file '" + (folder / "package") +
                          "' ('made to fail')"));
}

TEST_F(ExtractorFault, StopsAtAHeaderWithAWarning) {
  FailAt("archive_read_next_header", 3);
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): archive_read_next_header failed: 'made to fail'"));
  EXPECT_THAT(test::ReadTree(folder / "installed"), IsEmpty());
}

TEST_F(ExtractorFault, StopsAtAnEntryWithoutAPathAndLogsNoLineBreak) {
  FailAt("archive_entry_pathname", 1);
  EXPECT_EQ(extractor.Extract(), -1);
  extractor.package_path = "";
  extractor.Extract();
  EXPECT_EQ(log.Lines().back(),
            "[ERROR] extractor(0): archive_entry_pathname failed<stamp>"
            "[ERROR] extractor(0): Invalid Argument");
}

TEST_F(ExtractorFault, StopsAtAnEntryThatIsWrittenWithAWarning) {
  FailAt("archive_read_extract2", 1);
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): archive_read_extract2 failed: 'made to fail'"));
  EXPECT_EQ(Made("progress"), 0);
}

TEST_F(ExtractorFault, StopsAtAnEntryThatCannotBeFinishedAfterReportingIt) {
  FailAt("archive_write_finish_entry", 1);
  EXPECT_THAT(
      LinesOfAFailedExtraction(),
      ElementsAre("[ERROR] extractor(0): archive_write_finish_entry failed: 'made to fail'"));
  EXPECT_EQ(Made("progress"), 1);
}

TEST_F(ExtractorFault, LogsAFailureWithoutAReason) {
  FailAt("archive_write_finish_entry", 1);
  the_calls.has_reason = false;
  EXPECT_THAT(LinesOfAFailedExtraction(),
              ElementsAre("[ERROR] extractor(0): archive_write_finish_entry failed: '(null)'"));
}

TEST_F(ExtractorFault, FreesTheReaderThenTheWriterWhereverItStops) {
  for (auto const& [name, at] :
       std::vector<std::pair<std::string, int>>{{"archive_read_open_filename", 2},
                                                {"archive_read_next_header", 3},
                                                {"archive_entry_pathname", 1},
                                                {"archive_read_extract2", 1},
                                                {"archive_write_finish_entry", 1}}) {
    the_calls = Calls();
    FailAt(name, at);
    EXPECT_EQ(extractor.Extract(), -1) << name;
    EXPECT_EQ(Made("archive_read_free"), 2) << name;
    EXPECT_EQ(Made("archive_write_free"), 1) << name;
    EXPECT_THAT(Lines(the_calls.made.end() - 2, the_calls.made.end()),
                ElementsAre("archive_read_free", "archive_write_free"))
        << name;
    EXPECT_EQ(Made("archive_read_close") + Made("archive_write_close"), 0) << name;
  }
}

TEST_F(ExtractorFault, ContinuesCountingAfterDataThatCannotBeSkipped) {
  FailAt("archive_read_data_skip", 1);
  EXPECT_EQ(extractor.Count(), 1);
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(ExtractorFault, ListClosesTheArchiveBeforeItFreesIt) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "a\n");
  EXPECT_THAT(
      the_calls.made,
      ElementsAre("archive_read_new", "archive_read_support_filter_all",
                  "archive_read_support_format_all", "archive_read_open_filename 10240",
                  "archive_read_next_header", "archive_entry_pathname", "archive_read_data_skip",
                  "archive_read_next_header", "archive_read_close", "archive_read_free"));
}

TEST_F(ExtractorFault, ListFailsTheStreamAtAnEntryWithoutAPathAndContinues) {
  FailAt("archive_entry_pathname", 1);
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_TRUE(std::cout.fail());
  std::cout.clear();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(Made("archive_read_next_header"), 2);
}

TEST_F(ExtractorFault, ListFailsWithoutAReader) {
  FailAt("archive_read_new", 1);
  EXPECT_EQ(extractor.List(), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] extractor(0): Allocate archive failed"));
}

}  // namespace
