// frmPlayers over the game table, opened from the menu and answered from its own event loop.
#include <QLineEdit>

#include "../common/ModalAnswer.h"
#include "../table/WindowFixture.h"
#include "FreshDataFile.h"
#include "GameDialogs.h"
#include "frmPlayers.h"

// Without a file: the message first, lblNote for Add and Remove, and Close during a turn
// changes nothing. With it: two names typed and added, three seats, and Play takes the seats up to the first
// free one, enables the summary, clears the sessions and starts a new game.
TEST_F(WindowTest, ChangePlayersClosedOrPlayed)
{
    GameDialogs dialogs(*form);
    form->SetDialogs(&dialogs);
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    FinishRoll();
    const auto state = [this] { return std::tuple(form->cmdRoll->text(), logic().mRollsDone, logic().mDice); };
    const auto before = state();
    answers = {vbOK};
    AnswerNextModal([](QWidget* modal) {
        auto& d = *dynamic_cast<frmPlayers*>(modal);
        EXPECT_TRUE(d.fraAddRemove->isHidden() && !d.lblNote->isHidden());
        d.cmdCancel->click();
    });
    form->mnuNewPlayers->trigger();
    EXPECT_EQ(asked.size() == 1 ? asked[0].title : "", "Zarvo - Data File Error");
    EXPECT_EQ(state(), before);

    std::string error;
    ASSERT_TRUE(WriteFreshDataFile(ZARVO_SCHEMA_FILE, dir.filePath("Zarvo.dat").toStdString(), error));
    gSessionStats[1].SessionGames = 4;
    AnswerNextModal([](QWidget* modal) {
        auto& d = *dynamic_cast<frmPlayers*>(modal);
        QTest::keyClicks(d.cboAddRemove, " Ann");   // no blank first
        d.cmdAdd->click();
        d.cboAddRemove->lineEdit()->selectAll();   // typed over, no blank first; no "-" or "'"; twelve at most
        QTest::keyClicks(d.cboAddRemove, " Bo-b'by 1234567");
        QTest::keyClick(d.cboAddRemove, Qt::Key_Backspace);
        d.cmdAdd->click();
        for (auto [i, name] : {std::pair{0, "Ann"}, {1, "Bobby 12345"}, {2, "< Player 3 >"}})
            d.cboPlayer[i]->setCurrentIndex(d.cboPlayer[i]->findText(name));
        QTest::keyClick(&d, Qt::Key_Return);   // cmdPlay is the default button
    });
    form->mnuNewPlayers->trigger();
    EXPECT_EQ(std::tuple(gPlayerNames[1] + "," + gPlayerNames[2] + "," + gPlayerNames[3], gPlayerNames.UBound(),
                         form->mnuScoringSummary->isEnabled(), gSessionStats[1].SessionGames,
                         form->lblPleaseRoll->Caption()),
              std::tuple("Ann,Bobby 12345,< Player 3 >", 3, true, 0, "Ann's turn. Please roll."));
}
