#include "foundation/tmp-name-gen.h"

#include <gmock/gmock.h>
#include <sys/time.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

using Bytes = std::array<unsigned char, 256>;

bool IsName(std::string const& name) {
  return name.size() == 8 && name.find_first_not_of(kAlphabet) == std::string::npos;
}

}  // namespace

TEST(TmpNameGen, NamesHaveEightCharactersOfTheAlphabet) {
  for (int i = 0; i < 10000; ++i) {
    std::string const name = TmpNameGen::getInstance()->getTmpName().c_str();
    ASSERT_TRUE(IsName(name)) << name;
  }
}

TEST(TmpNameGen, NamesUseTheWholeAlphabetInEachPlace) {
  std::set<char> seen[8];
  for (int i = 0; i < 10000; ++i) {
    std::string const name = TmpNameGen::getInstance()->getTmpName().c_str();
    for (std::size_t place = 0; place < 8; ++place) seen[place].insert(name[place]);
  }
  EXPECT_THAT(seen, testing::Each(std::set<char>(kAlphabet, kAlphabet + 64)));
}

TEST(TmpNameGen, ConsecutiveNamesDiffer) {
  TmpNameGen names;
  std::set<std::string> seen;
  for (int i = 0; i < 10000; ++i) seen.insert(names.getTmpName().c_str());
  EXPECT_EQ(seen.size(), 10000U);
}

TEST(TmpNameGen, InstanceIsShared) {
  TmpNameGen* seen[4] = {};
  std::vector<std::thread> threads;
  for (TmpNameGen*& one : seen) {
    threads.emplace_back([&one] { one = TmpNameGen::getInstance(); });
  }
  for (std::thread& thread : threads) thread.join();
  for (TmpNameGen const* const one : seen) EXPECT_EQ(one, TmpNameGen::getInstance());
}

TEST(TmpNameGen, ThreadsGetDifferentNames) {
  std::mutex lock;
  std::set<std::string> seen;
  std::vector<std::thread> threads;
  for (int t = 0; t < 8; ++t) {
    threads.emplace_back([&] {
      for (int i = 0; i < 500; ++i) {
        std::string const name = TmpNameGen::getInstance()->getTmpName().c_str();
        std::lock_guard<std::mutex> const guard(lock);
        seen.insert(name);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(seen.size(), 4000U);
}

TEST(TmpNameGen, PathIsFolderSlashName) {
  auto const path_in = [](char const* folder) {
    return std::string(TmpNameGen::getInstance()->getTmpPath(folder).c_str());
  };
  std::string const path = path_in("/tmp");
  EXPECT_EQ(path.substr(0, 5), "/tmp/");
  EXPECT_TRUE(IsName(path.substr(5))) << path;
  EXPECT_EQ(path_in("/tmp/").substr(0, 6), "/tmp//");
  EXPECT_EQ(path_in("").substr(0, 1), "/");
  EXPECT_TRUE(IsName(path_in("").substr(1)));
}

TEST(TmpNameGen, KeyIsTheTimeAsAString) {
  // The same clock: time() may be a tick behind.
  timeval before;
  timeval after;
  gettimeofday(&before, nullptr);
  unsigned char key[256] = {};
  TmpNameGen::get_key(key, sizeof(key));
  gettimeofday(&after, nullptr);
  unsigned long seconds = 0;
  unsigned long microseconds = 0;
  char rest = 0;
  ASSERT_EQ(
      std::sscanf(reinterpret_cast<char const*>(key), "%lu-%lu%c", &seconds, &microseconds, &rest),
      2);
  EXPECT_GE(seconds, static_cast<unsigned long>(before.tv_sec));
  EXPECT_LE(seconds, static_cast<unsigned long>(after.tv_sec));
  EXPECT_LT(microseconds, 1000000U);
}

TEST(TmpNameGen, KeyStaysWithinItsBuffer) {
  unsigned char key[8];
  std::fill(std::begin(key), std::end(key), static_cast<unsigned char>('#'));
  TmpNameGen::get_key(key, 5);
  EXPECT_EQ(key[4], '\0');
  EXPECT_EQ(key[5], '#');
}

TEST(TmpNameGen, EmptyKeyIsFilledFromRand) {
  Bytes sbox;
  Bytes key;
  Bytes expected;
  time_t seed;
  do {  // until the second is the same before and after
    seed = std::time(nullptr);
    key.fill(0);
    TmpNameGen::rc4_init(sbox.data(), key.data());
  } while (std::time(nullptr) != seed);
  std::srand(static_cast<unsigned>(seed));
  for (unsigned char& byte : expected) byte = static_cast<unsigned char>(std::rand() & 255);
  EXPECT_EQ(key, expected);
}

TEST(TmpNameGen, FillsNoMoreThanTheKey) {
  for (unsigned char after = 1; after <= 2; ++after) {
    Bytes sbox;
    unsigned char key[257] = {};
    key[256] = after;
    TmpNameGen::rc4_init(sbox.data(), key);
    EXPECT_EQ(key[256], after);
  }
}

TEST(TmpNameGen, NonemptyKeyIsUnchanged) {
  Bytes sbox;
  Bytes key = {'k'};
  TmpNameGen::rc4_init(sbox.data(), key.data());
  EXPECT_EQ(key, Bytes{'k'});
}

// With a key of 256 bytes, the initialisation is that of the standard cipher, and so is the stream
// of the first call. Test vector: RFC 6229, the 40-bit key, repeated as the cipher does.
TEST(TmpNameGen, FirstCallReturnsTheStreamOfTheStandardCipher) {
  Bytes sbox;
  Bytes key;
  for (std::size_t i = 0; i < key.size(); ++i) key[i] = static_cast<unsigned char>(i % 5 + 1);
  TmpNameGen::rc4_init(sbox.data(), key.data());
  std::array<unsigned char, 16> output;
  TmpNameGen::rc4_randomize(sbox.data(), output.data(), output.size());
  std::array<unsigned char, 16> const expected = {0xb2, 0x39, 0x63, 0x05, 0xf0, 0x3d, 0xc0, 0x27,
                                                  0xcc, 0xc3, 0x52, 0x4a, 0x0a, 0x11, 0x18, 0xa8};
  EXPECT_EQ(output, expected);
}

TEST(TmpNameGen, InitialisesThePermutationOfTheStandardCipherFromWholeKeys) {
  Bytes key;
  Bytes expected;
  for (std::size_t i = 0; i < 256; ++i) {
    key[i] = static_cast<unsigned char>(7 * i + 1);
    expected[i] = static_cast<unsigned char>(i);
  }
  for (unsigned i = 0, j = 0; i < 256; ++i) {
    j = (j + expected[i] + key[i]) & 255;
    std::swap(expected[i], expected[j]);
  }
  Bytes sbox;
  TmpNameGen::rc4_init(sbox.data(), key.data());
  EXPECT_EQ(sbox, expected);
}

TEST(TmpNameGen, BytesAfterTheKeysTerminatorCount) {
  Bytes short_sbox;
  Bytes long_sbox;
  Bytes short_key = {'k'};
  Bytes long_key = {'k', 0, 'x'};
  TmpNameGen::rc4_init(short_sbox.data(), short_key.data());
  TmpNameGen::rc4_init(long_sbox.data(), long_key.data());
  EXPECT_NE(short_sbox, long_sbox);
}

/// The cipher by definition, with both counters at 0 for each call.
std::vector<unsigned char> Stream(Bytes& s, int count) {
  std::vector<unsigned char> bytes;
  unsigned i = 0;
  unsigned j = 0;
  while (count-- > 0) {
    i = (i + 1) & 255;
    j = (j + s[i]) & 255;
    std::swap(s[i], s[j]);
    bytes.push_back(s[(s[i] + s[j]) & 255U]);
  }
  return bytes;
}

TEST(TmpNameGen, EachCallRestartsAtTheBeginningOfTheCurrentPermutation) {
  Bytes key = {'k'};
  Bytes sbox;
  TmpNameGen::rc4_init(sbox.data(), key.data());
  Bytes const start = sbox;
  Bytes model = start;
  for (int call = 0; call < 3; ++call) {
    std::vector<unsigned char> output(6);
    TmpNameGen::rc4_randomize(sbox.data(), output.data(), 6);
    EXPECT_EQ(output, Stream(model, 6)) << "call " << call;
    EXPECT_EQ(sbox, model) << "call " << call;
  }
  Bytes single = start;
  Stream(single, 18);
  EXPECT_NE(sbox, single) << "one long run would leave another permutation";
}

TEST(TmpNameGen, CounterWrapsAround) {
  Bytes key = {'k'};
  Bytes sbox;
  TmpNameGen::rc4_init(sbox.data(), key.data());
  Bytes model = sbox;
  std::vector<unsigned char> output(1000);
  TmpNameGen::rc4_randomize(sbox.data(), output.data(), 1000);
  EXPECT_EQ(output, Stream(model, 1000));
  EXPECT_EQ(sbox, model);
}

TEST(TmpNameGen, CountOfZeroOrLessDoesNothing) {
  Bytes key = {'k'};
  Bytes sbox;
  TmpNameGen::rc4_init(sbox.data(), key.data());
  Bytes const before = sbox;
  unsigned char output = '#';
  TmpNameGen::rc4_randomize(sbox.data(), &output, 0);
  TmpNameGen::rc4_randomize(sbox.data(), &output, -1);
  EXPECT_EQ(output, '#');
  EXPECT_EQ(sbox, before);
}

TEST(TmpNameGen, NamesEncodeTheStreamOfTheTimesKeyInSixBitSteps) {
  timeval before;
  timeval after;
  gettimeofday(&before, nullptr);
  TmpNameGen names;
  gettimeofday(&after, nullptr);
  std::string const first = names.getTmpName().c_str();
  std::string const second = names.getTmpName().c_str();

  auto const name_of = [](unsigned char const* bytes) {
    std::uint64_t bits = 0;
    for (int i = 0; i < 6; ++i) bits = bits << 8 | bytes[i];
    std::string name;
    for (int shift = 42; shift >= 0; shift -= 6) name += kAlphabet[bits >> shift & 63];
    return name;
  };
  auto const microseconds = [](timeval const& time) {
    return time.tv_sec * 1000000L + time.tv_usec;
  };
  // Times with similar digits may share their first names, so count one match or more.
  int matches = 0;
  for (long time = microseconds(before); time <= microseconds(after); ++time) {
    Bytes key = {};
    std::string const text = std::to_string(time / 1000000) + "-" + std::to_string(time % 1000000);
    std::copy(text.begin(), text.end(), key.begin());
    Bytes sbox;
    TmpNameGen::rc4_init(sbox.data(), key.data());
    unsigned char output[6];
    TmpNameGen::rc4_randomize(sbox.data(), output, 6);
    if (name_of(output) != first) continue;
    TmpNameGen::rc4_randomize(sbox.data(), output, 6);
    if (name_of(output) == second) ++matches;
  }
  EXPECT_GE(matches, 1);
}
