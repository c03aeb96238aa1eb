#include "AppPath.h"

namespace {
std::string& Path()
{
    static std::string path = ".";
    return path;
}
}

std::string AppPath() { return Path(); }

void SetAppPath(const std::string& directory)
{
    std::string d = directory;
    while (d.size() > 1 && d.back() == '/')
        d.pop_back();
    Path() = d.empty() ? "." : d;
}

std::string AppFile(const std::string& name) { return AppPath() + "/" + name; }
