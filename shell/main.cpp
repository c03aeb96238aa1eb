// Zarvo: the program starts by loading the game table window and ends when it is unloaded.
#include <QApplication>

#include "QtServices.h"
#include "frmMain.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    InstallQtServices(app);
    frmMain form;
    form.Form_Load();
    form.show();
    return app.exec();
}
