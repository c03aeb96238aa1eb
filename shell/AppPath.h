#pragma once
// The program's directory, without a trailing separator, and files beside the program.
#include <string>

std::string AppPath();
void SetAppPath(const std::string& directory);

// AppPath() joined with `name` by the native separator.
std::string AppFile(const std::string& name);
