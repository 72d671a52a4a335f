// Stubs that are preloaded into the launcher, so that it doesn't flush. The tests must then fail,
// which shows that they can.
extern "C" {

int syncfs(int /*file*/) { return 0; }
int fsync(int /*file*/) { return 0; }

}  // extern "C"
