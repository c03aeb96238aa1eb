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

std::string AppPathAsStarted(const std::string& started, const std::string& workingDir,
                             const std::string& realDir)
{
    const auto slash = started.rfind('/');
    if (slash == std::string::npos)
        return realDir;
    const std::string folder = started.substr(0, slash);
    if (started[0] == '/')
        return folder.empty() ? "/" : folder;
    return folder == "." ? workingDir : workingDir + "/" + folder;
}

std::string AppFile(const std::string& name) { return AppPath() + "/" + name; }
