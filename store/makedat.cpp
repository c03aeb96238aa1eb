// zarvo_makedat SCHEMA.sql TARGET: writes a fresh data file at TARGET from the schema,
// unless something is already there. Run by the build and by the install.
#include <cstdio>
#include <string>

#include "FreshDataFile.h"

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s SCHEMA.sql TARGET\n", argv[0]);
        return 2;
    }
    std::string error;
    if (!WriteFreshDataFile(argv[1], argv[2], error)) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.c_str());
        return 1;
    }
    return 0;
}
