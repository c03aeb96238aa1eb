#pragma once
// The program's directory, without a trailing separator, and files beside the program.
#include <string>

std::string AppPath();
void SetAppPath(const std::string& directory);

// The program's directory as it was started: the folder of `started` (argv[0]) as given, links not
// resolved, so that a folder of links to an installed program beside a data file of its own is that
// program's directory; relative to `workingDir` when relative. A start by name through the PATH names
// no folder and gives `realDir`, the folder of the real executable.
std::string AppPathAsStarted(const std::string& started, const std::string& workingDir,
                             const std::string& realDir);

// AppPath() joined with `name` by the native separator.
std::string AppFile(const std::string& name);
