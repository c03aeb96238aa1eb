#include "HelpDialog.h"

#include <QLibrary>

#include "AppPath.h"
#include "HelpViewer.h"

HelpDialog::HelpDialog() = default;
HelpDialog::~HelpDialog() = default;

void HelpDialog::ShowHelp()
{
    if (HelpCommand != cdlHelpFinder)
        return;
    const QString file = QString::fromStdString(HelpFile);
    if (!viewer_ || viewer_->HelpFile() != file) {
        // Loaded once and kept: the viewer's code must outlive every viewer.
        static QLibrary module(QString::fromStdString(AppFile("libzarvo_helpviewer.so")));
        const auto create = reinterpret_cast<CreateHelpViewerFunction>(module.resolve(CreateHelpViewerName));
        if (!create) {
            qWarning("Zarvo: the help viewer cannot be loaded: %s", qPrintable(module.errorString()));
            return;
        }
        viewer_.reset(create(file));
    }
    viewer_->ShowFinder();
}
