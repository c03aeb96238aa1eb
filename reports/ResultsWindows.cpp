#include "ResultsWindows.h"

// Placeholders until the windows land.
void ShowPlayerResultsDialog(QWidget*) {}
void ShowSummaryDialog(QWidget*) {}
void ShowNewGameDialog(QWidget*) {}
