#include "FreshDataFile.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

namespace {
bool Exists(const std::string& path)
{
    struct stat info;
    return lstat(path.c_str(), &info) == 0;
}

bool ReadText(const std::string& path, std::string& text)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    text = content.str();
    return bool(in);
}

bool BuildDatabase(const std::string& schema, const std::string& path, std::string& error)
{
    sqlite3* connection = nullptr;
    int result = sqlite3_open_v2(path.c_str(), &connection,
                                 SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    char* message = nullptr;
    if (result == SQLITE_OK)
        result = sqlite3_exec(connection, ("BEGIN;\n" + schema + "\nCOMMIT;").c_str(), nullptr,
                              nullptr, &message);
    if (result != SQLITE_OK)
        error = message ? message : sqlite3_errmsg(connection);
    sqlite3_free(message);
    return sqlite3_close(connection) == SQLITE_OK && result == SQLITE_OK;
}
}

bool WriteFreshDataFile(const std::string& schemaFile, const std::string& target,
                        std::string& error)
{
    if (Exists(target))
        return true;
    std::string schema;
    if (!ReadText(schemaFile, schema)) {
        error = "cannot read " + schemaFile;
        return false;
    }
    const std::string temporary = target + ".new-" + std::to_string(getpid());
    unlink(temporary.c_str());
    bool written = BuildDatabase(schema, temporary, error);
    // A hard link, unlike a rename, never replaces a file that appeared meanwhile.
    if (written && link(temporary.c_str(), target.c_str()) != 0 && errno != EEXIST) {
        error = "cannot write " + target + ": " + std::strerror(errno);
        written = false;
    }
    unlink(temporary.c_str());
    return written;
}
