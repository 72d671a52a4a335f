#pragma once

#include <string>

namespace test {

/// Carries out a script on a ustring and on a plain model of one, written without a look at speed,
/// and compares them after each step: text, UTF-16 copy, capacities, results, thrown errors and
/// the number of warnings. Any bytes make a script. Returns what differed, empty if nothing did.
std::string CompareUstringWithModel(std::string const& script);

}  // namespace test
