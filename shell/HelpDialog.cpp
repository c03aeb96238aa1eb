#include "HelpDialog.h"

#include "HelpWindow.h"

HelpDialog::HelpDialog() = default;
HelpDialog::~HelpDialog() = default;

void HelpDialog::ShowHelp()
{
    if (HelpCommand != cdlHelpFinder)
        return;
    const QString file = QString::fromStdString(HelpFile);
    if (!viewer_ || viewer_->HelpFile() != file)
        viewer_ = std::make_unique<HelpWindow>(file);
    viewer_->ShowFinder();
}
