#pragma once
// Per test: its own program directory for the data file, and a message box that records what it was asked.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/fsuid.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "AppPath.h"
#include "FreshDataFile.h"
#include "MsgBox.h"
#include "SavedSetup.h"
#include "modDatabase.h"
#include "modGlobalVars.h"

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using Message = std::tuple<std::string, int, std::string>;  // text, style, title

// SaveSetup with these players in the seats.
inline void SaveSetupWith(const SetupMarks& marks, const Names& names)
{
    gPlayerNames.ReDim(int(names.size()));
    for (int n = 1; n <= int(names.size()); ++n)
        gPlayerNames[n] = names[n - 1];
    SaveSetup(marks);
}

class DataFileFixture : public ::testing::Test {
public:
    void SetUp() override
    {
        char pattern[] = "/tmp/zarvo-store-XXXXXX";
        ASSERT_NE(mkdtemp(pattern), nullptr);
        SetAppPath(directory = pattern);
        SetMsgBoxHandler([this](const auto&... asked) { return messages.emplace_back(asked...), int(vbOK); });
    }
    void TearDown() override
    {
        EXPECT_FALSE(gDataDatabase.IsOpen()) << "each piece of work closes the data file it opened";
        CloseDataFile(), SetMsgBoxHandler({});
        releaser = {}, sqlite3_close(locker);
        setfsuid(getuid()), fs::remove_all(directory);
    }

    std::string DataPath() const { return AppFile("Zarvo.dat"); }
    void MakeFreshFile() { std::string e; ASSERT_TRUE(WriteFreshDataFile(ZARVO_SCHEMA_FILE, DataPath(), e)) << e; }
    // Runs statements on a connection of its own; the rows selected as "a|b;c|d", NULL as "NULL".
    std::string Sql(const std::string& statements) const
    {
        sqlite3* connection = nullptr;
        sqlite3_open_v2(DataPath().c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr);
        std::string rows;
        const auto add = [](void* out, int count, char** values, char**) {
            auto& text = *static_cast<std::string*>(out);
            for (int i = 0; i < count; ++i)
                text += (i ? "|" : text.empty() ? "" : ";") + std::string(values[i] ? values[i] : "NULL");
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(connection, statements.c_str(), add, &rows, nullptr), SQLITE_OK)
            << sqlite3_errmsg(connection);
        sqlite3_close(connection);
        return rows;
    }
    std::string Bytes() const { std::ostringstream s; s << std::ifstream(DataPath()).rdbuf(); return s.str(); }
    void WriteBytes(const std::string& bytes) const { std::ofstream(DataPath()) << bytes; }
    // The names in the program's folder: a journal left beside the data file shows here.
    std::string Listing() const
    {
        std::string names;
        for (const auto& entry : fs::directory_iterator(directory)) names += entry.path().filename().string() + ";";
        return names;
    }
    // Another program begins a transaction on the file and holds it, until the test ends or for `pause`
    // milliseconds: "BEGIN EXCLUSIVE" keeps others from reading, "BEGIN IMMEDIATE" only from writing.
    void Lock(const char* begin, int pause = 0)
    {
        ASSERT_EQ(sqlite3_open_v2(DataPath().c_str(), &locker, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(locker, begin, nullptr, nullptr, nullptr), SQLITE_OK);
        if (pause)
            releaser = std::jthread([this, pause] {
                std::this_thread::sleep_for(std::chrono::milliseconds(pause));
                sqlite3_exec(locker, "COMMIT", nullptr, nullptr, nullptr);
            });
    }
    // Root passes every file mode, so root tests them as another user, who loses its overrides.
    void Chmod(mode_t mode, mode_t folder = 0755)
    {
        chmod(directory.c_str(), folder);
        chmod(DataPath().c_str(), mode);
        if (getuid() == 0 && (setfsuid(65534), setfsuid(-1)) != 65534)
            GTEST_SKIP() << "root, and its file overrides could not be given up";
    }

    std::string directory;
    std::vector<Message> messages;
    sqlite3* locker = nullptr;
    std::jthread releaser;
};
