#pragma once

#include <algorithm>
#include <iostream>
#include <sstream>
#include <string>

namespace test {

/// Captures std::cerr until the end of the scope.
class CapturedCerr {
 public:
  CapturedCerr() : former_(std::cerr.rdbuf(text_.rdbuf())) {}
  ~CapturedCerr() { std::cerr.rdbuf(former_); }
  CapturedCerr(CapturedCerr const&) = delete;
  CapturedCerr& operator=(CapturedCerr const&) = delete;

  std::string text() const { return text_.str(); }
  long lines() const {
    std::string const text = text_.str();
    return std::count(text.begin(), text.end(), '\n');
  }

 private:
  std::ostringstream text_;
  std::streambuf* former_;
};

}  // namespace test
