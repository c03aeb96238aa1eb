#pragma once
// Each test gets its own program directory with, on request, a fresh data file in it, a
// message box that records what it was asked, and its own connection to look at the file
// without going through the code under test.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

struct ShownMessage {
    std::string text;
    int style;
    std::string title;
};

// Its helpers are public so that table-driven cases can use them from outside the class.
class DataFileFixture : public ::testing::Test {
public:
    void SetUp() override;
    void TearDown() override;

    std::string DataPath() const;
    void MakeFreshFile() const;
    void Sql(const std::string& statements) const;
    // The rows of a SELECT, each column as text, NULL as "NULL".
    std::vector<std::vector<std::string>> Rows(const std::string& select) const;
    // The whole file, to prove it was left alone.
    std::string Bytes() const;
    void WriteBytes(const std::string& bytes) const;
    // Another program holding the file: "BEGIN EXCLUSIVE" or "BEGIN IMMEDIATE".
    void HoldLock(const char* begin);
    // Ends that hold from another thread after a moment; join the thread.
    std::thread ReleaseLockAfter(std::chrono::milliseconds pause);

    std::string directory;
    std::vector<ShownMessage> messages;

private:
    sqlite3* locker_ = nullptr;
};

// Root passes every file mode. For as long as it lives, this drops the capabilities that
// let it, so chmod works on this process as on a user's; Active() is false if it could not.
class FileModesHold {
public:
    FileModesHold();
    ~FileModesHold();
    bool Active() const { return active_; }

private:
    bool dropped_ = false;
    bool active_ = false;
};
