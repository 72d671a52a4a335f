// Preloaded into the launcher, so that it doesn't flush: the tests must then find failures, which
// shows that they can.
extern "C" {

int syncfs(int /*file*/) { return 0; }
int fsync(int /*file*/) { return 0; }

}  // extern "C"
