#pragma once

#include <string>

namespace test {

/// Runs a script on a ustring and on a simple model of it, and compares them after each step:
/// bytes, UTF-16 copy, capacities, results, exceptions and the number of warnings. Any bytes are a
/// valid script. Returns the difference, or an empty string.
std::string CompareUstringWithModel(std::string const& script);

}  // namespace test
