#include "service/config.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <limits>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/files.h"

namespace {

using testing::IsEmpty;

using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs PairsOf(Config const& config) {
  Pairs pairs;
  for (auto const& [key, value] : config) pairs.emplace_back(key.c_str(), value.c_str());
  return pairs;
}

class ConfigTest : public testing::Test {
 protected:
  /// Reads a file of these bytes into the config of the test.
  int Read(std::string const& bytes) {
    test::WriteFile(path_, bytes);
    return config_.read(path_.c_str());
  }

  test::TempDir const folder_;
  std::string const path_ = folder_ / "config";
  Config config_;
};

struct Case {
  std::string name;
  std::string line;
  Pairs pairs;
};

/// Lines that are accepted, with the resulting pairs.
class ConfigAccepts : public ConfigTest, public testing::WithParamInterface<Case> {};

TEST_P(ConfigAccepts, TheLine) {
  EXPECT_EQ(Read(GetParam().line), 0);
  EXPECT_EQ(PairsOf(config_), GetParam().pairs);
}

/// Malformed lines.
class ConfigRefuses : public ConfigTest, public testing::WithParamInterface<Case> {};

TEST_P(ConfigRefuses, TheLineAndEverythingReadBefore) {
  EXPECT_EQ(Read("good=1\n" + GetParam().line), -1);
  EXPECT_THAT(PairsOf(config_), IsEmpty());
}

std::string NameOf(testing::TestParamInfo<Case> const& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(
    Ignored, ConfigAccepts,
    testing::Values(Case{"NoLine", "", {}}, Case{"Empty", "\n", {}},
                    Case{"Blanks", " \t\v\f\r\n", {}}, Case{"Comment", "# text\n", {}},
                    Case{"PaddedComment", "  # a=b\n", {}}, Case{"KeyAndComment", "key#x=1\n", {}},
                    Case{"KeyAtTheEndOfTheFile", "key", {}},
                    Case{"PaddedKeyAtTheEndOfTheFile", "  key", {}},
                    Case{"NulEndsTheLine", std::string("key\0=oops\n", 10), {}},
                    Case{"NulAtTheStart", std::string("\0oops\n", 6), {}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Pair, ConfigAccepts,
    testing::Values(
        Case{"Plain", "key=value\n", {{"key", "value"}}},
        Case{"WithoutLineEnd", "key=value", {{"key", "value"}}},
        Case{"Padded", "  key  =  value  \n", {{"key", "value"}}},
        Case{"PaddedWithEveryBlank", "\t\v\f\r key\t=\v\f\r value\v\f\t\r\n", {{"key", "value"}}},
        Case{"BehindItAComment", "key=value # note\n", {{"key", "value"}}},
        Case{"HashInTheValue", "key=value#note\n", {{"key", "value#note"}}},
        Case{"ValueOfAHash", "key=#\n", {{"key", "#"}}},
        Case{"EqualsInTheValue", "key==a=b\n", {{"key", "=a=b"}}},
        Case{"QuotesInTheValue", "key=a\"b'\n", {{"key", "a\"b'"}}},
        Case{"DoubleQuotes", "key=\"two words\"\n", {{"key", "two words"}}},
        Case{"SingleQuotes", "key='two words'\n", {{"key", "two words"}}},
        Case{"EmptyInSingleQuotes", "key=''\n", {{"key", ""}}},
        Case{"EmptyInDoubleQuotes", "key=\"\"\n", {{"key", ""}}},
        Case{"QuotedAndAComment", "key=\"a\"#note\n", {{"key", "a"}}},
        Case{"QuotedWithoutLineEnd", "key='a'", {{"key", "a"}}},
        Case{"OtherQuoteInside", "key=\"it's\"\n", {{"key", "it's"}}},
        Case{"HashAndBlanksInside", "key=' a # b '\n", {{"key", " a # b "}}},
        Case{"BackslashIsNoEscape", "key=\"a\\\" #b\"\n", {{"key", "a\\"}}},
        Case{"Utf8", "key=h\xC3\xA4\n", {{"key", "h\xC3\xA4"}}},
        Case{"QuotedUtf8", "key='h\xC3\xA4 \xFF'\n", {{"key", "h\xC3\xA4 \xFF"}}},
        Case{"EmptyKey", "=value\n", {{"", "value"}}},
        Case{"EveryKindOfKeyByte", "azAZ09_-.=1\n", {{"azAZ09_-.", "1"}}},
        Case{"CarriageReturns", "a=1\r\nb='2'\r\n\r\n# c\r\n", {{"a", "1"}, {"b", "2"}}},
        Case{"NulBehindTheValue", std::string("key=value\0 oops\n", 16), {{"key", "value"}}},
        Case{"LastOneWins", "a=1\na=2\n", {{"a", "2"}}},
        Case{"KeysDifferByCase", "a=1\nA=2\n", {{"A", "2"}, {"a", "1"}}},
        Case{"KeysInOrder", "c=3\na=1\nb=2\n", {{"a", "1"}, {"b", "2"}, {"c", "3"}}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    SyntaxError, ConfigRefuses,
    testing::Values(
        Case{"TwoWords", "key=two words\n", {}}, Case{"NoValue", "key=\n", {}},
        Case{"NoValueAtTheEndOfTheFile", "key=", {}}, Case{"OnlyBlanksAsValue", "key= \t\r\n", {}},
        Case{"OpenDoubleQuote", "key=\"open\n", {}}, Case{"OpenSingleQuote", "key='open", {}},
        Case{"OtherQuoteCloses", "key='open\"\n", {}}, Case{"KeyAlone", "key\n", {}},
        Case{"KeyAndBlank", "key ", {}}, Case{"KeyBlankComment", "key # x\n", {}},
        Case{"Section", "[section]\n", {}}, Case{"Colon", "key:value\n", {}},
        Case{"BlankInTheKey", "a b=c\n", {}}, Case{"SlashInTheKey", "a/b=c\n", {}},
        Case{"CaretInTheKey", "a^b=c\n", {}}, Case{"Utf8InTheKey", "\xC3\xA4=c\n", {}},
        Case{"ByteOrderMark", "\xEF\xBB\xBFkey=1\n", {}},
        Case{"CommentAsValue", "key= # note\n", {}}, Case{"QuotesAndText", "key='a'b\n", {}},
        Case{"QuotesAndUtf8", "key='a'\xC3\xA4\n", {}}, Case{"TabInQuotes", "key='a\tb'\n", {}},
        Case{"DeleteInQuotes", "key='a\x7F'\n", {}}, Case{"DeleteInTheValue", "key=a\x7F\n", {}},
        Case{"ControlInTheValue", "key=a\x01\n", {}},
        Case{"ControlBehindTheValue", "key=a \x08\n", {}}, Case{"EscapeByte", "key=a \x1B\n", {}},
        Case{"ControlAsValue", "key=\x01\n", {}}, Case{"ControlAtTheStart", "\x01key=a\n", {}},
        Case{"DeleteBehindTheValue", "key='a' \x7F\n", {}},
        Case{"Utf8BehindTheValue", "key=a \x80\n", {}},
        Case{"NulForTheValue", std::string("key=\0value\n", 11), {}},
        Case{"NulInQuotes", std::string("key='a\0b'\n", 10), {}}),
    NameOf);

TEST_F(ConfigTest, DropsEarlierPairsOfTheSameFileOnASyntaxError) {
  EXPECT_EQ(Read("pid=123\noops\n"), -1);
  EXPECT_THAT(PairsOf(config_), IsEmpty());
}

TEST_F(ConfigTest, DropsThePairsOfAnEarlierFileOnASyntaxError) {
  EXPECT_EQ(Read("a=1\n"), 0);
  EXPECT_EQ(Read("b=2\noops\nc=3\n"), -1);
  EXPECT_THAT(PairsOf(config_), IsEmpty()) << "nor is the file read on";
}

TEST_F(ConfigTest, AddsToThePairsOfAnEarlierFile) {
  EXPECT_EQ(Read("a=1\nb=1\n"), 0);
  EXPECT_EQ(Read("b=2\nc=2\n"), 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"a", "1"}, {"b", "2"}, {"c", "2"}}));
}

TEST_F(ConfigTest, KeepsItsPairsWhenTheFileIsMissing) {
  EXPECT_EQ(Read("a=1\n"), 0);
  EXPECT_EQ(config_.read((folder_ / "missing").c_str()), -1);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"a", "1"}}));
}

TEST_F(ConfigTest, RejectsAnEmptyPathAndKeepsItsPairs) {
  EXPECT_EQ(Read("a=1\n"), 0);
  errno = 0;
  EXPECT_EQ(config_.read(""), -1);
  EXPECT_EQ(errno, 0) << "no file is asked for";
  EXPECT_EQ(PairsOf(config_), (Pairs{{"a", "1"}}));
}

TEST_F(ConfigTest, TreatsAReadErrorAsTheEndOfTheFile) {
  EXPECT_EQ(config_.read(folder_.path().c_str()), 0) << "a folder opens, but can't be read";
  EXPECT_THAT(PairsOf(config_), IsEmpty());
}

TEST_F(ConfigTest, LeavesNoFileOpen) {
  test::WriteFile(path_, "a=1\n");
  int const before = open(path_.c_str(), O_RDONLY | O_CLOEXEC);
  close(before);
  Read("a=1\n");
  Read("oops\n");
  int const after = open(path_.c_str(), O_RDONLY | O_CLOEXEC);
  close(after);
  EXPECT_EQ(after, before);
}

/// Waits for the descriptor that is open for reading a file; returns -1 at the deadline.
/// Descriptors of another thread are found by name: using their numbers wouldn't be synchronised
/// with that thread.
int ReadingDescriptor(struct stat const& wanted) {
  auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (std::chrono::steady_clock::now() < deadline) {
    for (int descriptor = 0; descriptor < 256; ++descriptor) {
      struct stat found = {};
      std::string const name = "/dev/fd/" + std::to_string(descriptor);
      if (stat(name.c_str(), &found) != 0 || found.st_ino != wanted.st_ino) continue;
      if (found.st_dev != wanted.st_dev) continue;
      if ((fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDONLY) return descriptor;
    }
  }
  return -1;
}

TEST_F(ConfigTest, ClosesItsFileOnExec) {
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  int result = -2;
  std::thread reader([&] { result = config_.read(path_.c_str()); });
  int const writing =
      open(path_.c_str(), O_WRONLY | O_CLOEXEC);  // blocks until the reader opens it
  struct stat fifo = {};
  EXPECT_EQ(fstat(writing, &fifo), 0);
  int const reading = ReadingDescriptor(fifo);
  EXPECT_NE(reading, -1);
  EXPECT_EQ(fcntl(reading, F_GETFD), FD_CLOEXEC);
  EXPECT_EQ(write(writing, "a=1\n", 4), 4);
  close(writing);
  reader.join();
  EXPECT_EQ(result, 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"a", "1"}}));
}

// ---- lines longer than the buffer: 8191 bytes are one line, the rest is the next ----

TEST_F(ConfigTest, SplitsALongLineAndParsesTheRest) {
  std::string const value(8200, 'v');
  EXPECT_EQ(Read("k=" + value + "\n"), -1) << "the rest is a key alone on its line";
  EXPECT_THAT(PairsOf(config_), IsEmpty());
}

TEST_F(ConfigTest, IgnoresTheRestOfALongLineThatEndsTheFile) {
  std::string const value(8200, 'v');
  EXPECT_EQ(Read("k=" + value), 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"k", std::string(8189, 'v')}}));
}

TEST_F(ConfigTest, ReadsTheRestOfALongLineAsALine) {
  std::string const value(8189, 'v');
  EXPECT_EQ(Read("k=" + value + "b=2\n"), 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"b", "2"}, {"k", value}}));
}

TEST_F(ConfigTest, ReadsALineThatJustFits) {
  std::string const value(8188, 'v');
  EXPECT_EQ(Read("k=" + value + "\nb=2\n"), 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"b", "2"}, {"k", value}}));
}

TEST_F(ConfigTest, CutsALongCommentToo) {
  EXPECT_EQ(Read("#" + std::string(8190, ' ') + "oops\n"), -1);
  EXPECT_EQ(Read("#" + std::string(8190, ' ') + "b=2\n"), 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"b", "2"}}));
}

TEST_F(ConfigTest, ReadsManyLines) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "key" + std::to_string(i) + "=" + std::to_string(i) + "\n";
  EXPECT_EQ(Read(text), 0);
  EXPECT_EQ(config_.size(), 2000U);
  EXPECT_EQ(config_.get_int("key1999"), 1999);
}

// ---- access ----

TEST_F(ConfigTest, EntersAnUnknownKeyOnAccess) {
  EXPECT_TRUE(config_["pid"].empty());
  EXPECT_EQ(PairsOf(config_), (Pairs{{"pid", ""}}));
}

TEST_F(ConfigTest, GetIntOfAnAbsentKeyIsZeroAndEntersTheKey) {
  EXPECT_EQ(config_.get_int("pid"), 0);
  EXPECT_EQ(PairsOf(config_), (Pairs{{"pid", ""}}));
}

TEST_F(ConfigTest, GetIntReadsTheNumberThatTheValueBeginsWith) {
  std::pair<char const*, int> const cases[] = {
      {"123", 123},
      {"12abc", 12},
      {"  7", 7},
      {"-5", -5},
      {"+5", 5},
      {"abc", 0},
      {"", 0},
      {"-", 0},
      {"0x10", 0},
      {"010", 10},
      {"1.9", 1},
      {"--1", 0},
      {" \t\n8 9", 8},
      {"2147483647", std::numeric_limits<int>::max()},
      {"\xC3\xA4"
       "1",
       0},
  };
  for (auto const& [value, number] : cases) {
    config_["key"] = value;
    EXPECT_EQ(config_.get_int("key"), number) << "'" << value << "'";
  }
}

}  // namespace
