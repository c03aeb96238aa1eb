#include "DataFileFixture.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "AppPath.h"
#include "FreshDataFile.h"
#include "MsgBox.h"
#include "modDatabase.h"

void DataFileFixture::SetUp()
{
    char pattern[] = "/tmp/zarvo-store-XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    directory = pattern;
    SetAppPath(directory);
    SetMsgBoxHandler([this](const std::string& text, int style, const std::string& title) {
        messages.push_back({text, style, title});
        return int(vbOK);
    });
}

void DataFileFixture::TearDown()
{
    CloseDataFile();
    sqlite3_close(locker_);
    SetMsgBoxHandler({});
    std::filesystem::remove_all(directory);
}

std::string DataFileFixture::DataPath() const { return AppFile("Zarvo.dat"); }

void DataFileFixture::MakeFreshFile() const
{
    std::string error;
    ASSERT_TRUE(WriteFreshDataFile(ZARVO_SCHEMA_FILE, DataPath(), error)) << error;
}

void DataFileFixture::Sql(const std::string& statements) const
{
    sqlite3* connection = nullptr;
    sqlite3_open_v2(DataPath().c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr);
    char* error = nullptr;
    EXPECT_EQ(sqlite3_exec(connection, statements.c_str(), nullptr, nullptr, &error), SQLITE_OK)
        << (error ? error : "");
    sqlite3_free(error);
    sqlite3_close(connection);
}

std::vector<std::vector<std::string>> DataFileFixture::Rows(const std::string& select) const
{
    std::vector<std::vector<std::string>> rows;
    sqlite3* connection = nullptr;
    sqlite3_open_v2(DataPath().c_str(), &connection, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(connection, select.c_str(), -1, &statement, nullptr), SQLITE_OK);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        rows.emplace_back();
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            const auto* text = sqlite3_column_text(statement, i);
            rows.back().push_back(text ? reinterpret_cast<const char*>(text) : "NULL");
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    return rows;
}

std::string DataFileFixture::Bytes() const
{
    std::ifstream in(DataPath(), std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

void DataFileFixture::WriteBytes(const std::string& bytes) const
{
    std::ofstream(DataPath(), std::ios::binary | std::ios::trunc) << bytes;
}

void DataFileFixture::HoldLock(const char* begin)
{
    ASSERT_EQ(sqlite3_open_v2(DataPath().c_str(), &locker_, SQLITE_OPEN_READWRITE, nullptr),
              SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(locker_, begin, nullptr, nullptr, nullptr), SQLITE_OK);
}

std::thread DataFileFixture::ReleaseLockAfter(std::chrono::milliseconds pause)
{
    return std::thread([this, pause] {
        std::this_thread::sleep_for(pause);
        sqlite3_exec(locker_, "COMMIT", nullptr, nullptr, nullptr);
    });
}

namespace {
const unsigned FileOverrides = (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH);

bool SetEffective(bool withOverrides)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2]{};
    if (syscall(SYS_capget, &header, data) != 0)
        return false;
    data[0].effective = withOverrides ? data[0].effective | FileOverrides
                                      : data[0].effective & ~FileOverrides;
    return syscall(SYS_capset, &header, data) == 0;
}
}

FileModesHold::FileModesHold()
{
    if (geteuid() != 0) {
        active_ = true;
        return;
    }
    dropped_ = active_ = SetEffective(false);
}

FileModesHold::~FileModesHold()
{
    if (dropped_)
        SetEffective(true);
}
