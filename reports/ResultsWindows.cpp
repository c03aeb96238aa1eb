#include "ResultsWindows.h"

#include "frmNewGame.h"
#include "frmPlayerResults.h"
#include "frmSummary.h"

// Each window lives for one showing: created, filled, shown modally, and gone when it closes.

void ShowPlayerResultsDialog(QWidget* owner)
{
    frmPlayerResults results(owner);
    results.ShowValues();
    results.CentreOnOwner();   // after ShowValues, which may make it shorter
    results.exec();
}

void ShowSummaryDialog(QWidget* owner)
{
    frmSummary summary(owner);   // places itself beside the main window
    summary.exec();
}

void ShowNewGameDialog(QWidget* owner)
{
    frmNewGame prompt(owner);
    prompt.CentreOnOwner();
    prompt.exec();
}
