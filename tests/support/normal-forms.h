#pragma once

namespace test {

/// A name in both normal forms: "cafe" with an acute accent.
inline constexpr char kComposed[] = "caf\xC3\xA9";
inline constexpr char kDecomposed[] = "cafe\xCC\x81";

}  // namespace test
