#pragma once

namespace platform {

/// Flushes the volume of a path, following symlinks: all writes before the call are on the disk
/// before any write after it. The path must exist and be readable.
///
/// Returns 0, or -1 with `errno` set and no guarantee. Blocks until the disk is done, with other
/// programs' writes to the volume too. Any thread.
int FlushVolume(char const* path);

}  // namespace platform
