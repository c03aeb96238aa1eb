// Start-up and shutdown of the window with a data file beside the program: the saved options
// and players come back at Form_Load, and closing the window saves them.
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "AppPath.h"
#include "FreshDataFile.h"
#include "frmMain.h"
#include "modGlobalVars.h"

namespace {
class Startup : public testing::Test {
protected:
    void SetUp() override
    {
        SetAppPath(dir.path().toStdString());
        std::string error;
        ASSERT_TRUE(WriteFreshDataFile(ZARVO_SCHEMA_FILE, file(), error)) << error;
    }
    std::string file() const { return dir.filePath("Zarvo.dat").toStdString(); }
    void Sql(const std::string& statements)
    {
        sqlite3* db = nullptr;
        ASSERT_EQ(sqlite3_open(file().c_str(), &db), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(db, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
        sqlite3_close(db);
    }
    std::string Query(const std::string& select)
    {
        sqlite3* db = nullptr;
        sqlite3_open(file().c_str(), &db);
        std::string rows;
        sqlite3_exec(db, select.c_str(), [](void* out, int n, char** values, char**) {
            for (int i = 0; i < n; ++i)
                *static_cast<std::string*>(out) += std::string(values[i] ? values[i] : "NULL") + (i + 1 < n ? "|" : ";");
            return 0;
        }, &rows, nullptr);
        sqlite3_close(db);
        return rows;
    }
    QTemporaryDir dir;
};
}

// Three remembered players and saved marks: the first player is asked to roll, the summary
// entry is enabled, the marks are set without running their commands; at exit the rows are
// rewritten from the run.
TEST_F(Startup, RememberedPlayersAndMarksComeBackAndAreSaved)
{
    Sql("INSERT INTO Setup VALUES (-1, -1, 0, 0);"
        "INSERT INTO PlayersInUse VALUES (1, 'Anna'), (2, '< Player 2 >'), (3, 'Bo');");
    {
        frmMain form;
        form.Form_Load();
        EXPECT_EQ(gPlayerNames.UBound(), 3);
        EXPECT_EQ(form.lblPleaseRoll->Caption(), "Anna's turn. Please roll.");
        EXPECT_TRUE(form.mnuScoringSummary->isEnabled());
        EXPECT_TRUE(form.mnuRememberPlayers->isChecked());
        EXPECT_TRUE(form.mnuUseKeyboard->isChecked());
        EXPECT_FALSE(form.mnuScoringPreview->isChecked());
        EXPECT_FALSE(form.mnuAnimation->isChecked());
        form.mnuScoringPreview->trigger();
        form.close();
    }
    EXPECT_EQ(Query("SELECT * FROM Setup"), "-1|-1|-1|0;");
    EXPECT_EQ(Query("SELECT PlayerNumber, PlayerName FROM PlayersInUse ORDER BY rowid"),
              "1|Anna;2|< Player 2 >;3|Bo;");
}

// Without a data file the game starts with the defaults and one placeholder player, and
// closing it saves nothing and creates no file.
TEST_F(Startup, WithoutADataFile)
{
    QFile::remove(dir.filePath("Zarvo.dat"));
    {
        frmMain form;
        form.Form_Load();
        EXPECT_EQ(form.lblPleaseRoll->Caption(), "Player 1's turn. Please roll.");
        EXPECT_FALSE(form.mnuScoringSummary->isEnabled());
        EXPECT_TRUE(form.mnuAnimation->isChecked());
        EXPECT_FALSE(form.mnuRememberPlayers->isChecked());
        form.close();
    }
    EXPECT_FALSE(QFile::exists(dir.filePath("Zarvo.dat")));
}
