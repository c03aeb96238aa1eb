#pragma once
// Writes the fresh data file that the game expects beside it. The game never does this
// itself; the build and the install do, through the zarvo_makedat tool.
#include <string>

// Creates `target` from the SQL in `schemaFile` when nothing is at that path, and leaves
// anything that is there alone. The database is built under a temporary name and linked
// into place only when complete, so a failure leaves no half-made file; true when a file is
// at `target` afterwards. On failure `error` says why.
bool WriteFreshDataFile(const std::string& schemaFile, const std::string& target,
                        std::string& error);
