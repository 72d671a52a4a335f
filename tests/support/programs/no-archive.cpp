// A library that has one of libarchive's calls and none of the others.

extern "C" void* archive_read_new() {
  static char reader;
  return &reader;
}
