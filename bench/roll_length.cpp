// The real length of a roll: the game table window with its real timer, a first roll and a
// later roll of all five dice started by cmdRoll, timed by the wall clock until the dice rest.
#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

#include "AppPath.h"
#include "QtServices.h"
#include "frmMain.h"

namespace {
double TimeRoll(frmMain& form)
{
    QElapsedTimer clock;
    clock.start();
    form.cmdRoll->click();
    while (form.Logic().mRollPhase != 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return clock.nsecsElapsed() / 1e6;
}
}

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    InstallQtServices(app);
    SetAppPath("/nonexistent");   // no data file: nothing is read or saved
    frmMain form;
    form.Form_Load();
    form.show();
    for (int run = 0; run < 3; ++run) {
        const double first = TimeRoll(form);
        for (int i = 0; i < 5; ++i)
            form.SetDieTop(i, RollRow);   // mark all five for the later roll
        form.Logic().UpdateRollCaption();
        const double later = TimeRoll(form);
        std::printf("first roll (45 ticks): %.0f ms; later roll of five (52 ticks): %.0f ms\n", first, later);
        form.Logic().StartNewGame();
    }
    return 0;
}
