// Removes a tree as the launcher does.
//
// usage: remove PATH

#include "foundation/file-op.h"

int main(int argc, char** argv) { return argc == 2 && FSRemove(argv[1], false) == 0 ? 0 : 1; }
