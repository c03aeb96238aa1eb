// Zarvo: the program starts by loading the game table window and ends when it is unloaded.
#include <QApplication>
#include <QLocale>

#include "AppInfo.h"
#include "GameDialogs.h"
#include "Languages.h"
#include "QtServices.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationVersion(ZarvoVersion);
    QApplication::setDesktopFileName(ZarvoDesktopId);   // ties the windows to the menu entry and icon
    InstallQtServices(app);
    LoadLanguage(QLocale::system());   // the desktop's language
    frmMain form;
    GameDialogs dialogs(form);
    form.SetDialogs(&dialogs);
    form.Form_Load();
    form.show();
    return app.exec();
}
