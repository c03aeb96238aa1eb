#pragma once
// The help viewer: the pages of the help beside its finder, which holds the contents, an index
// of keywords and a full-text search. It is an ordinary window, not modal, so that the game can
// be played beside it; it never keeps the program running once the game's window has closed.
#include <QCoreApplication>
#include <QWidget>

#include "HelpCollection.h"
#include "HelpViewer.h"

class QSplitter;
class QTabWidget;
class QTextBrowser;

class HelpWindow : public QWidget, public HelpViewer {
    Q_DECLARE_TR_FUNCTIONS(HelpWindow)

public:
    explicit HelpWindow(const QString& helpFile);
    ~HelpWindow() override;

    QString HelpFile() const override { return helpFile_; }
    void ShowFinder() override;

private:
    QWidget* CreateIndexTab();
    QWidget* CreateSearchTab();
    void ShowPage(const QUrl& page);
    void ShowContentsPage();

    QString helpFile_;
    HelpCollection collection_;
    QSplitter* panes_ = nullptr;
    QTabWidget* finder_ = nullptr;
    QTextBrowser* page_ = nullptr;
};
