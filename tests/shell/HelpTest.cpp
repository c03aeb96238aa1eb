// The help as it ships, and the Help menu of the game table.
#include <QFile>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTranslator>

#include "Accessible.h"
#include "HelpWindow.h"
#include "ModalAnswer.h"
#include "Scoring.h"
#include "TableFile.h"
#include "WindowFixture.h"
#include "frmAbout.h"

// A row of Languages.txt: the language, then what the game shows; its last word is what its help's
// index finds the option Remember Players by.
class Help : public testing::TestWithParam<QStringList> {
protected:
    void SetUp() override
    {
        if (translator.load("zarvo_" + GetParam()[0], ZARVO_TRANSLATIONS))
            QCoreApplication::installTranslator(&translator);
    }
    void TearDown() override { QCoreApplication::removeTranslator(&translator); }
    QTranslator translator;
};
void PrintTo(const QStringList& row, std::ostream* out) { *out << row.join(' ').toStdString(); }

// Every page named in the contents exists; the index and a search find the pages of the card's
// words. Each worked example of the pages, a row of dice, category, what the card held by the
// card's own names ("Ones 4, Zarvo 50"), score and bonus, agrees with the rules.
TEST_P(Help, ContentsIndexSearchAndExamples)
{
    HelpCollection help(QString(ZARVO_BIN_DIR) + (GetParam()[0] == "en" ? "/Zarvo.hlp" : "/Zarvo_" + GetParam()[0] + ".hlp"));
    QHelpEngine& engine = help.Engine();
    QHelpSearchEngine* search = engine.searchEngine();
    QSignalSpy created(engine.contentModel(), &QHelpContentModel::contentsCreated), indexed(search, &QHelpSearchEngine::indexingFinished),
        found(search, &QHelpSearchEngine::searchingFinished);
    ASSERT_TRUE(help.Registered() && created.wait(10000) && (indexed.count() || indexed.wait(10000)));
    QList<QHelpContentItem*> items = {engine.contentModel()->contentItemAt(engine.contentModel()->index(0, 0))};
    for (int k = 0; k < items.size(); ++k) {
        EXPECT_FALSE(engine.fileData(items[k]->url()).isEmpty()) << items[k]->title().toStdString();
        for (int i = 0; i < items[k]->childCount(); ++i)
            items << items[k]->child(i);
    }
    EXPECT_EQ(items.size(), 21);
    QStringList rows = {""};
    for (const char* caption : {"Ones....", "Twos....", "Threes..", "Fours....", "Fives....", "Sixes....",
                                "Three of a Kind..", "Four of a Kind....", "Full House.........", "Small Straight....",
                                "Large Straight...", "Zarvo................", "Chance.............", "Bonus.."})
        rows << SpokenCaption(QCoreApplication::translate("frmMain", caption));
    EXPECT_EQ(engine.documentsForKeyword(rows[CatFullHouse]).value(0).url.fileName(), "fullhouse.html");
    EXPECT_EQ(engine.documentsForKeyword(GetParam().last()).value(0).url.fileName(), "players.html");
    search->search(rows[BonusCell]);
    ASSERT_TRUE(found.wait(10000));
    const QList<QHelpSearchResult> results = search->searchResults(0, search->searchResultCount());
    EXPECT_TRUE(std::any_of(results.begin(), results.end(), [](auto& r) { return r.url().fileName() == "bonus.html"; }));

    const QRegularExpression held("(\\p{Lu}[\\p{L} '-]*) (\\d+)"), example("<tr><td>([1-6]) ([1-6]) ([1-6]) ([1-6]) ([1-6])"
        "</td><td>([^<]*)</td><td>([^<]*)</td><td class=\"num\">(\\d+)</td><td class=\"num\">(\\d+)</td></tr>");
    QStringList covered;
    for (const QUrl& page : engine.files(engine.registeredDocumentations().first(), QString(), "html"))
        for (const QRegularExpressionMatch& m : example.globalMatch(QString::fromUtf8(engine.fileData(page)))) {
            ScoreCard card{{0, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 0}};   // all open, no bonus
            for (const QRegularExpressionMatch& entry : held.globalMatch(m.captured(7)))   // a stray name throws
                card[rows.indexOf(entry.captured(1))] = std::int16_t(entry.captured(2).toInt());
            auto n = [&m](int i) { return m.captured(i).toInt(); };
            const Evaluation e = EvaluateCategory({n(1), n(2), n(3), n(4), n(5)}, card, rows.indexOf(m.captured(6)));
            EXPECT_EQ(QString("%1 %2").arg(e.score).arg(e.bonus), m.captured(8) + ' ' + m.captured(9)) << m.captured(0).toStdString();
            covered << m.captured(6);
        }
    covered.removeDuplicates();
    EXPECT_EQ(covered.size(), CategoryCount) << covered.join(", ").toStdString();
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, Help, testing::ValuesIn(ReadTable(ZARVO_LANGUAGES_TABLE)),
                         [](const auto& info) { return info.param[0].toStdString(); });

// F1 opens the help beside the game at its contents page, and again after another page was
// read; About has no title bar, stands centred and closes by OK (its layout is the guard's).
TEST_F(WindowTest, HelpMenuContentsAndAbout)
{
    for (const char* file : {"Zarvo.hlp", "libzarvo_helpviewer.so"})   // the viewer this binary has loaded
        ASSERT_TRUE(QFile::link(QString(ZARVO_BIN_DIR) + "/" + file, dir.filePath(file)));
    ASSERT_TRUE(Shown());
    QTest::keyClick(form.get(), Qt::Key_F1);
    HelpWindow* help = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (help = dynamic_cast<HelpWindow*>(QApplication::activeWindow())); }));
    auto* contents = help->findChild<QHelpContentWidget*>();
    auto* page = help->findChild<QTextBrowser*>();
    EXPECT_TRUE(!help->isModal() && contents->isVisible() && help->findChild<QHelpIndexWidget*>() &&
                help->findChild<QHelpSearchQueryWidget*>());
    EXPECT_TRUE(QTest::qWaitFor([page] { return page->source().fileName() == "index.html"; }));
    const QModelIndex other = contents->model()->index(1, 0, contents->model()->index(0, 0));
    emit contents->activated(other);   // a page chosen in the contents
    ASSERT_NE(page->source().fileName(), "index.html");
    QTest::keyClick(help, Qt::Key_F1);   // in the viewer, where the page was chosen
    EXPECT_EQ(page->source().fileName(), "index.html");
    emit contents->activated(other);
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QTest::keyClick(form.get(), Qt::Key_F1);   // back in the game
    EXPECT_EQ(page->source().fileName(), "index.html");

    AnswerNextModal([this](QWidget* modal) {
        auto* about = dynamic_cast<frmAbout*>(modal);
        EXPECT_TRUE(about->windowFlags().testFlag(Qt::FramelessWindowHint));
        EXPECT_LE((about->frameGeometry().center() - form->frameGeometry().center()).manhattanLength(), 2);
        QTest::keyClick(about, Qt::Key_Return);   // OK, the default button
    });
    form->mnuAbout->trigger();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
}
