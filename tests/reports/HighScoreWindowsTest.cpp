// The top ten's windows offscreen: what frmHighScores shows; a name typed into frmHighScoreNotify with real keys.
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "DataFileFixture.h"
#include "HighScoreWindows.h"
#include "Label.h"
#include "ModalAnswer.h"
#include "frmHighScoreNotify.h"
#include "frmHighScores.h"
#include "modCommon.h"

namespace {
using HighScoreWindows = DataFileFixture;

// A line of the window: name, score, date, and how many of the three are bold.
using Shown = std::tuple<std::string, std::string, std::string, int>;
Shown LineOf(const frmHighScores& form, int r)
{
    const auto text = [](const Label* label) { return label->Caption().toStdString(); };
    return {text(form.lblPlayerName[r]), text(form.lblScore[r]), text(form.lblDate[r]),
            form.lblPlayerName[r]->font().bold() + form.lblScore[r]->font().bold() + form.lblDate[r]->font().bold()};
}
}

// Best first, the older of two equal scores above, today bold but not this day of another year; a missing row
// or unreadable value stays blank; English months; without a file, a message and no window.
TEST_F(HighScoreWindows, FillsBestFirstWithTodayInBold)
{
    MakeFreshFile(), SetClock([] { return DateTime{2026, 5, 4}; });
    Sql("DELETE FROM HighScores; INSERT INTO HighScores VALUES ('Gus', NULL, '2024-02-29 10:00'), ('Ivy', 160, 'soon'),"
        "('Flo', 170, '2026-05-03 23:59:59'), ('Ed', 180, '2025-12-01 08:00'), ('Di', 180, '2026-01-15 08:00'),"
        "('Cy', 200, '2025-05-04 21:15'), ('Bob', 250, '2026-05-04 21:15'), ('Ann', 300, '2026-05-04 00:00:01'),"
        "('Hal', 'lots', '2024-07-09 10:00')");
    const frmHighScores form(nullptr);
    const Shown expected[HighScoreRows] = {{"", "", "", 0}, {"Hal", "", "Jul. 9, 2024", 0},
        {"Ann", "300", "May. 4, 2026", 3}, {"Bob", "250", "May. 4, 2026", 3}, {"Cy", "200", "May. 4, 2025", 0},
        {"Ed", "180", "Dec. 1, 2025", 0}, {"Di", "180", "Jan. 15, 2026", 0}, {"Flo", "170", "May. 3, 2026", 0},
        {"Ivy", "160", "", 0}, {"Gus", "", "Feb. 29, 2024", 0}};
    for (int r = 0; r < HighScoreRows; ++r)
        EXPECT_EQ(LineOf(form, r), expected[r]) << "line " << r;
    const std::string months = "Jan.Feb.Mar.Apr.May.Jun.Jul.Aug.Sep.Oct.Nov.Dec.";
    for (int m = 1; m <= 12; ++m)
        EXPECT_EQ(FormatDate({2025, m, 1}).substr(0, 4), months.substr(4 * (m - 1), 4));
    fs::remove(DataPath());
    QTimer guard;   // closes a window that must not open
    guard.callOnTimeout([] { QApplication::activeModalWidget()->close(), ADD_FAILURE(); }), guard.start();
    ShowHighScoresDialog(nullptr);
    EXPECT_EQ(messages.size(), 1u);
}

// The notify window opens on OK offering the name without marks; typing follows the character rule; Enter stores
// the box, shown in bold at its place. Closed by the window system, the window leaves the offered name.
TEST_F(HighScoreWindows, NameTypedInTheNotifyWindowReachesTheTable)
{
    struct Step { int start, length; const char* keys; const char* text; };
    static const Step steps[] = {
        {0, 8, " ", "Player 1"},               // a leading blank, even over a selection
        {0, 8, "a b2!'", "a b2"},              // over a selection: small letters stay, inner blank and digit pass
        {0, 0, " ", "a b2"},                   // a blank before the first character
        {4, 0, "cdefghijk", "a b2cdefghij"},   // no thirteenth character
        {11, 1, "Z", "a b2cdefghiZ"},          // but a selection is still replaced
        {1, 1, "!", "a!b2cdefghiZ"},           // by anything but a leading blank
        {12, 0, "\b", "a!b2cdefghi"},          // Backspace passes at full length
    };
    MakeFreshFile(), SetClock([] { return DateTime{2026, 5, 4}; });
    gPlayerNames.ReDim(1, "< Player 1 >"), gScores.ReDim(1), ClearScoreboard();
    gScores[1][CatChance] = 200;
    Shown entry;
    AnswerNextModal([&entry](QWidget* modal) {
        auto& notify = dynamic_cast<frmHighScoreNotify&>(*modal);
        EXPECT_EQ(notify.focusWidget(), notify.cmdOK);
        for (const Step& s : steps) {
            notify.txtName->setSelection(s.start, s.length);
            QTest::keyClicks(notify.txtName, s.keys);
            EXPECT_EQ(notify.txtName->text(), s.text) << s.keys;
        }
        QTest::keyClick(notify.txtName, Qt::Key_Return);
        AnswerNextModal([&entry](QWidget* table) {
            entry = LineOf(dynamic_cast<frmHighScores&>(*table), 4);
            table->close();
        });
    });
    CheckHighScoreWithDialogs(1, nullptr);
    EXPECT_EQ(entry, Shown("a!b2cdefghi", "200", "May. 4, 2026", 3));
    frmHighScoreNotify closed(nullptr);   // offers the name just entered
    closed.show(), closed.txtName->setText("x"), closed.close();
    EXPECT_EQ(gHighScoreName, "a!b2cdefghi");
}
