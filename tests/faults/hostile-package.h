#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/sandbox.h"

namespace test {

/// An installation of build 100, a bundle of build 200 whose package each test creates, and a
/// folder outside the home that no package should reach.
class HostilePackage : public testing::Test {
 protected:
  HostilePackage() {
    sandbox_.Install(100);
    sandbox_.CarryVersion(200);
    std::filesystem::create_directories(Outside());
    WriteFile(Outside() + "/victim", "mine");
    std::filesystem::create_directories(Outside() + "/closed");
    std::filesystem::permissions(Outside() + "/closed", std::filesystem::perms(0700));
    // The working folder during unpacking is the home.
    WriteFile(sandbox_.Home() + "/victim", "mine");
    old_ = ReadTree(sandbox_.App());
  }

  std::string Outside() const { return sandbox_.folder() / "outside"; }
  static std::string SoundClient() { return MakeArchive(Sandbox::Client(200), "gnutar"); }

  /// Everything outside the user's root, except what the client leaves in its home.
  Tree Beside() const {
    Tree all = ReadTree(Outside());
    for (auto const& entry : std::filesystem::directory_iterator(sandbox_.folder().path())) {
      all["/" + entry.path().filename().string()] = {};
    }
    return all;
  }
  bool IsInstalled() const {
    std::string const info = sandbox_.App() + "/Contents/Resources/INFO";
    return std::filesystem::exists(info) && ReadFile(info).find("=200") != std::string::npos &&
           !std::filesystem::exists(sandbox_.App() + "_tmp");
  }
  bool IsRolledBack() const {
    return ReadTree(sandbox_.App()) == old_ && !std::filesystem::exists(sandbox_.App() + "_tmp");
  }
  bool IsLogged(std::string const& text) const {
    return sandbox_.RawLog().find(text) != std::string::npos;
  }
  void Restore() {
    std::filesystem::remove_all(sandbox_.UserRoot());
    sandbox_.Install(100);
  }

  Sandbox sandbox_;
  Tree old_;
};

}  // namespace test
