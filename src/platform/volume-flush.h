#pragma once

namespace platform {

/// Makes all that was written so far to the volume of a path durable, links followed: what comes
/// before the call is on the disk before anything that comes behind it. The path has to exist and
/// to be readable.
///
/// Returns 0, or -1 with `errno` set, after which nothing is promised; what was written is there
/// all the same. Blocks until the disk is done, other programs' writes to that volume included. Any
/// thread.
int FlushVolume(char const* path);

}  // namespace platform
