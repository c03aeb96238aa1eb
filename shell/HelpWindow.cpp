#include "HelpWindow.h"

#include <QHBoxLayout>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>

namespace {
// Pages, pictures and style sheets of the help come out of the help file.
class HelpPage : public QTextBrowser {
public:
    HelpPage(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {}

    QVariant loadResource(int type, const QUrl& name) override
    {
        if (name.scheme() == "qthelp")
            return engine_.fileData(name);
        return QTextBrowser::loadResource(type, name);
    }

private:
    QHelpEngine& engine_;
};
}

HelpWindow::HelpWindow(const QString& helpFile) : helpFile_(helpFile), collection_(helpFile)
{
    setWindowTitle(tr("Zarvo Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(760, 520);
    QHelpEngine& engine = collection_.Engine();

    panes_ = new QSplitter(this);
    finder_ = new QTabWidget(panes_);
    page_ = new HelpPage(engine, panes_);
    panes_->setStretchFactor(1, 1);
    panes_->setSizes({230, 530});
    (new QHBoxLayout(this))->addWidget(panes_);

    QHelpContentWidget* contents = engine.contentWidget();
    finder_->addTab(contents, tr("&Contents"));
    finder_->addTab(CreateIndexTab(), tr("&Index"));
    finder_->addTab(CreateSearchTab(), tr("&Search"));
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpWindow::ShowPage);
    // Typing goes where the chosen tab takes it: the keyword, or the words to search for.
    connect(finder_, &QTabWidget::currentChanged, this, [this] { finder_->currentWidget()->setFocus(); });
    // The contents are read in the background; the first page shows once they are there.
    connect(engine.contentModel(), &QHelpContentModel::contentsCreated, this, [this, contents] {
        contents->expandToDepth(0);
        if (page_->source().isEmpty())
            ShowContentsPage();
    });

    // F1 in the viewer itself asks for the contents too, as it does in the game.
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, &HelpWindow::ShowFinder);

    if (!collection_.Registered())
        page_->setPlainText(tr("There is no help to show: the help file \"%1\" could not be read.").arg(helpFile));
}

// The finder's widgets and the page use the help engine, so they go before it.
HelpWindow::~HelpWindow() { delete panes_; }

QWidget* HelpWindow::CreateIndexTab()
{
    auto* tab = new QWidget;
    auto* label = new QLabel(tr("&Type the first letters of a keyword:"), tab);
    auto* lookFor = new QLineEdit(tab);
    lookFor->setAccessibleName(tr("Keyword"));
    label->setBuddy(lookFor);
    tab->setFocusProxy(lookFor);
    QHelpIndexWidget* index = collection_.Engine().indexWidget();
    auto* column = new QVBoxLayout(tab);
    column->addWidget(label);
    column->addWidget(lookFor);
    column->addWidget(index);
    connect(lookFor, &QLineEdit::textChanged, index, [index](const QString& text) { index->filterIndices(text); });
    connect(lookFor, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink& document) { ShowPage(document.url); });
    // A keyword with several pages shows the first; ours name one page each.
    connect(index, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& documents) { ShowPage(documents.first().url); });
    return tab;
}

QWidget* HelpWindow::CreateSearchTab()
{
    QHelpSearchEngine* search = collection_.Engine().searchEngine();
    auto* tab = new QWidget;
    auto* column = new QVBoxLayout(tab);
    QHelpSearchQueryWidget* query = search->queryWidget();
    tab->setFocusProxy(query);
    column->addWidget(query);
    column->addWidget(search->resultWidget());
    // A search waits for the index of the words, which is built when the window opens.
    connect(search, &QHelpSearchEngine::indexingStarted, query, [query] { query->setEnabled(false); });
    connect(search, &QHelpSearchEngine::indexingFinished, query, [query] { query->setEnabled(true); });
    connect(query, &QHelpSearchQueryWidget::search, search, [search, query] { search->search(query->searchInput()); });
    connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, this, &HelpWindow::ShowPage);
    return tab;
}

void HelpWindow::ShowPage(const QUrl& page) { page_->setSource(page); }

void HelpWindow::ShowContentsPage()
{
    QHelpContentModel* model = collection_.Engine().contentModel();
    if (QHelpContentItem* first = model->contentItemAt(model->index(0, 0)))
        ShowPage(first->url());
}

void HelpWindow::ShowFinder()
{
    finder_->setCurrentIndex(0);
    ShowContentsPage();
    show();
    raise();
    activateWindow();
}

extern "C" Q_DECL_EXPORT HelpViewer* CreateHelpViewer(const QString& helpFile) { return new HelpWindow(helpFile); }
