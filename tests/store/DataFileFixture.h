#pragma once
// Per test: its own program directory, a recording message box, and its own look at the file.
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

using Loaded = std::tuple<bool, bool, bool, bool, Names>;  // the four marks and the seats

inline Loaded Expect(const SetupMarks& m, const Names& players)
{
    return {m.RememberPlayers, m.UseKeyboard, m.ShowScoringPreview, m.AnimateRolling, players};
}

// What LoadSetup gives, over seats left from before.
inline Loaded LoadedSetup()
{
    gPlayerNames.ReDim(2, "left over");
    SetupMarks marks;
    LoadSetup(marks);
    Names names;
    for (int n = 1; n <= gPlayerNames.UBound(); ++n)
        names.push_back(gPlayerNames[n]);
    return Expect(marks, names);
}

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
        SetMsgBoxHandler([this](const std::string& text, int style, const std::string& title) {
            messages.emplace_back(text, style, title);
            return int(vbOK);
        });
    }
    void TearDown() override
    {
        CloseDataFile();
        releaser_ = {};  // joins the thread that ends the lock
        sqlite3_close(locker_);
        setfsuid(getuid());
        SetMsgBoxHandler({});
        fs::remove_all(directory);
    }

    std::string DataPath() const { return AppFile("Zarvo.dat"); }
    void MakeFreshFile() const
    {
        std::string error;
        ASSERT_TRUE(WriteFreshDataFile(ZARVO_SCHEMA_FILE, DataPath(), error)) << error;
    }
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
    std::string Bytes() const
    {
        std::ostringstream content;
        content << std::ifstream(DataPath(), std::ios::binary).rdbuf();
        return content.str();
    }
    void WriteBytes(const std::string& bytes) const { std::ofstream(DataPath(), std::ios::binary) << bytes; }
    // Another program holds the file exclusively, until the test ends or for `pause` if given.
    void Lock(std::chrono::milliseconds pause = {})
    {
        ASSERT_EQ(sqlite3_open_v2(DataPath().c_str(), &locker_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(locker_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        if (pause.count())
            releaser_ = std::jthread([this, pause] {
                std::this_thread::sleep_for(pause);
                sqlite3_exec(locker_, "COMMIT", nullptr, nullptr, nullptr);
            });
    }
    // Root passes every file mode, so root tests them as another user, who loses its overrides.
    void Chmod(mode_t mode)
    {
        chmod(directory.c_str(), 0711);
        chmod(DataPath().c_str(), mode);
        if (getuid() == 0 && (setfsuid(65534), setfsuid(-1)) != 65534)
            GTEST_SKIP() << "root, and its file overrides could not be given up";
    }

    std::string directory;
    std::vector<Message> messages;

private:
    sqlite3* locker_ = nullptr;
    std::jthread releaser_;
};
