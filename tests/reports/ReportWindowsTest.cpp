// The reports' windows offscreen: a name typed into frmHighScoreNotify with real keys and the table it lands in.
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

using HighScoreWindows = DataFileFixture;

// The notify window opens on OK offering the name without marks; real keys meet the character rule; Enter
// stores the box over the lowest row (an empty score). The High Scores window then shows best first, the older of
// two equal scores above, today bold but not this day of another year, an unreadable value blank, missing rows
// empty. Closed by the window system, the notify window leaves the offered name; without a file, no table loads.
TEST_F(HighScoreWindows, NameTypedInTheNotifyWindowReachesTheTable)
{
    MakeFreshFile(), SetClock([] { return DateTime{2026, 5, 4}; });
    Sql("DELETE FROM HighScores; INSERT INTO HighScores VALUES ('Gus', NULL, '2024-07-09 10:00'), ('Ivy', 160, 'soon'),"
        "('Cy', 200, '2025-05-04 21:15'), ('Ann', 300, '2026-05-04 00:00:01'), ('Hal', 'lots', '2024-02-29 10:00')");
    gPlayerNames.ReDim(1, "< Player 1 >"), gScores.ReDim(1), ClearScoreboard(), gScores[1][CatChance] = 200;
    std::string shown;   // the lines of the table as "name|score|date", a star for each bold label
    AnswerNextModal([&shown](QWidget* modal) {
        auto& notify = dynamic_cast<frmHighScoreNotify&>(*modal);
        EXPECT_EQ(notify.focusWidget(), notify.cmdOK);
        notify.txtName->selectAll();   // real keys through the character rule: no blank first, no "!"
        QTest::keyClicks(notify.txtName, " a b2cdefghi!");
        EXPECT_EQ(notify.txtName->text(), "a b2cdefghi");
        QTest::keyClick(notify.txtName, Qt::Key_Return);
        AnswerNextModal([&shown](QWidget* window) {
            const auto& form = dynamic_cast<frmHighScores&>(*window);
            for (int r = 0; r < HighScoreRows; ++r) {
                const Label* l[] = {form.lblPlayerName[r], form.lblScore[r], form.lblDate[r]};
                shown += (l[0]->Caption() + "|" + l[1]->Caption() + "|" + l[2]->Caption()).toStdString()
                         + std::string(l[0]->font().bold() + l[1]->font().bold() + l[2]->font().bold(), '*') + ";";
            }
            window->close();
        });
    });
    CheckHighScoreWithDialogs(1, nullptr);
    EXPECT_EQ(shown, "||;||;||;||;||;Hal||Feb. 29, 2024;Ann|300|May. 4, 2026***;Cy|200|May. 4, 2025;"
                     "a b2cdefghi|200|May. 4, 2026***;Ivy|160|;");
    Sql("INSERT INTO HighScores SELECT * FROM HighScores; INSERT INTO HighScores SELECT * FROM HighScores LIMIT 1");
    EXPECT_EQ(Sql("SELECT count(*) FROM HighScores"), "11") << "by hand: ten of them are read";
    EXPECT_TRUE(frmHighScores(nullptr).Loaded());
    frmHighScoreNotify closed(nullptr);   // offers the name just entered
    closed.show(), closed.txtName->setText("x"), closed.close();
    fs::remove(DataPath());
    EXPECT_EQ((std::tuple{gHighScoreName, frmHighScores(nullptr).Loaded(), messages.size()}),   // braces: in order
              std::tuple("a b2cdefghi", false, std::size_t(1)));
}
