// Every window of the game against the layout table (WindowLayout.txt): each named control at
// its rectangle in twips, with its caption, alignment and visibility, and no control that the
// table does not name; every caption that shows must fit its control, and no two access keys of
// a window or menu may be the same. It runs in every language of Languages.txt, where a caption
// is the translation of the table's; and once more at twice the pixel density.
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <memory>

#include "CaptionFit.h"
#include "DataFileFixture.h"
#include "Frame.h"
#include "Languages.h"
#include "QtServices.h"
#include "TableFile.h"
#include "frmAbout.h"
#include "frmHighScoreNotify.h"
#include "frmHighScores.h"
#include "frmMain.h"
#include "frmNewGame.h"
#include "frmPlayerResults.h"
#include "frmPlayers.h"
#include "frmSummary.h"
#include "modCommon.h"

namespace {
using Row = QStringList;   // the words of a row of the table; a quoted text is one word
struct Case {
    Row window;   // window, case, class, client width and height, title
    QList<Row> controls;
};

QList<Case> ReadLayout()
{
    QList<Case> cases;
    for (const Row& row : ReadTable(ZARVO_LAYOUT_TABLE))
        if (row[0] == "window")
            cases.append({row, {}});
        else
            cases.last().controls.append(row);
    return cases;
}

QString CaptionOf(const QObject* o)
{
    if (auto* label = qobject_cast<const Label*>(o))
        return label->Caption();
    if (auto* frame = dynamic_cast<const Frame*>(o))
        return frame->Caption();
    if (auto* button = qobject_cast<const QPushButton*>(o))
        return button->text();
    if (auto* box = qobject_cast<const QComboBox*>(o))
        return box->currentText();
    auto* text = qobject_cast<const QLineEdit*>(o);
    return text ? text->text() : "-";
}

// A control as the window shows it, in the words of its row: a line's ends, a menu entry's
// caption and shortcut, or the twips, alignment, visibility and caption of any other control.
Row Observed(const QObject* o)
{
    const auto n = [](int twips) { return QString::number(twips); };
    if (auto* line = dynamic_cast<const Line*>(o))
        return {o->objectName(), "line", n(line->X1()), n(line->Y1()), n(line->X2()), n(line->Y2())};
    if (auto* menu = qobject_cast<const QMenu*>(o))
        return {o->objectName(), "menu", menu->menuAction()->text(), "-"};
    if (auto* item = qobject_cast<const QAction*>(o))
        return {o->objectName(), "menu", item->text(), item->shortcut().isEmpty() ? "-" : item->shortcut().toString()};
    const auto* w = static_cast<const QWidget*>(o);
    const TwipRect at = PlaceOf(w);
    const auto* label = qobject_cast<const Label*>(w);
    const Align a = label ? label->Alignment() : Align::Left;
    return {o->objectName(), n(at.left), n(at.top), n(at.width), n(at.height),
            !label ? "-" : a == Align::Left ? "left" : a == Align::Centre ? "centre" : "right",
            w->isHidden() ? "hidden" : "shown", CaptionOf(w)};
}

// The letters after "&" in these captions, the access keys, are all different.
void ExpectUniqueKeys(const QStringList& captions, const std::string& where)
{
    QStringList keys;
    for (const QString& text : captions)
        if (const qsizetype amp = text.indexOf('&'); amp >= 0 && amp + 1 < text.size())
            keys << text.mid(amp + 1, 1).toLower();
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << where << ": " << keys.join(' ').toStdString();
}
void ExpectUniqueKeys(const QWidget* menu)   // the menu bar or a menu
{
    QStringList captions;
    for (const QAction* action : menu->actions())
        captions << action->text();
    ExpectUniqueKeys(captions, menu->objectName().toStdString());
}

// A caption that shows fits: a label's ink lies within it, a button's or frame's text within
// its margins.
void ExpectFits(const QWidget* w, const std::string& where)
{
    const QString text = CaptionOf(w).remove('&');
    const auto* label = qobject_cast<const Label*>(w);
    EXPECT_TRUE(!label || text.isEmpty() || InkFits(label)) << where << " does not hold \"" << text.toStdString() << '"';
    const int margin = dynamic_cast<const Frame*>(w) ? 16 : qobject_cast<const QPushButton*>(w) ? 8 : -1;
    EXPECT_TRUE(margin < 0 || QFontMetrics(w->font()).horizontalAdvance(text) <= w->width() - margin) << where;
}

// The table's English text as a window of `context` must show it: its translation where the
// language has one; a text built at run time ("Player 1's Scoreboard") is compared in English only.
QString Shown(const QString& english, const QString& shown, const QString& context, const QString& comment = {})
{
    const QString translated = QCoreApplication::translate(context.toUtf8().constData(), english.toUtf8().constData(),
                                                           comment.isEmpty() ? nullptr : comment.toUtf8().constData());
    return UiLanguage() != "en" && translated == english ? shown : translated;
}

class LayoutGuard : public DataFileFixture {
protected:
    // Opens the window of a case in its state; owner is the game table some dialogs need.
    QWidget* Open(const Row& window)
    {
        const QStringList part = window[1].split('-');
        fs::remove(DataPath());
        if (part[0] != "main" && part.last() != "nofile")
            MakeFreshFile();
        owner = std::make_unique<frmMain>();
        owner->Form_Load();
        gPlayerNames.ReDim(part.size() > 1 ? std::max(part[1].toInt(), 1) : 1);
        for (int p = 1; p <= gPlayerNames.UBound(); ++p)
            gPlayerNames[p] = PlaceholderName(p);
        gScores.ReDim(gPlayerNames.UBound()), ClearScoreboard(), ClearSessionStats(), gCurrentPlayer = 1;
        gHighScoreName = "Player 1";
        const QString& name = window[2];
        frmPlayerResults* results = name == "frmPlayerResults" ? new frmPlayerResults(owner.get()) : nullptr;
        if (results)
            results->ShowValues();
        return name == "frmMain" ? owner.get() : name == "frmPlayers" ? new frmPlayers(owner.get(), owner->Logic())
               : name == "frmHighScoreNotify" ? new frmHighScoreNotify(owner.get())
               : name == "frmHighScores" ? new frmHighScores(owner.get()) : name == "frmSummary" ? new frmSummary(owner.get())
               : name == "frmNewGame" ? new frmNewGame(owner.get())
               : name == "frmAbout" ? static_cast<QWidget*>(new frmAbout(owner.get())) : results;
    }

    void Check(const Case& c)
    {
        const QString& context = c.window[2];
        QWidget* window = Open(c.window);
        ASSERT_TRUE(window) << c.window[2].toStdString();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        const auto* main = qobject_cast<frmMain*>(window);
        const QWidget* client = main                    ? main->Client()
                                : context == "frmAbout" ? window->findChild<QWidget*>("imgMain")->parentWidget()
                                                        : window;   // the About box's border lies around its client area
        EXPECT_EQ(QString("%1|%2|%3").arg(PixelsToTwips(client->width())).arg(PixelsToTwips(client->height())).arg(window->windowTitle())
                      .toStdString(), QStringList({c.window[3], c.window[4], Shown(c.window[5], window->windowTitle(), context)}).join('|')
                      .toStdString());
        QSet<QString> listed;
        QStringList keys;   // the captions of the window's buttons
        for (const Row& row : c.controls) {
            const std::string where = (c.window[1] + " " + row[0]).toStdString();
            listed << row[0];
            const QObject* o = window->findChild<QObject*>(row[0]);
            ASSERT_TRUE(o) << where << " is missing";
            const Row seen = Observed(o);
            Row expected = row.mid(0, seen.size());
            const qsizetype caption = seen[1] == "menu" ? 2 : 7, align = 5;
            if (caption < expected.size())
                expected[caption] = expected[caption] == "*" || expected[caption] == "-"
                                        ? seen[caption] : Shown(expected[caption], seen[caption], context, row.value(8));
            if (seen[1] != "menu" && seen[1] != "line" && expected.value(align) == "-")
                expected[align] = seen[align];
            EXPECT_EQ(seen.join('|').toStdString(), expected.join('|').toStdString()) << where;
            if (const auto* w = qobject_cast<const QWidget*>(o); w && seen.size() == 8) {
                const TwipRect at = PlaceOf(w);   // the pixels stand where the twips say
                EXPECT_EQ(w->geometry(), QRect(TwipsToPixels(at.left), TwipsToPixels(at.top), TwipsToPixels(at.width),
                                               TwipsToPixels(at.height))) << where;
                if (w->isVisible())
                    ExpectFits(w, where), keys << (qobject_cast<const QPushButton*>(w) ? CaptionOf(w) : QString());
            }
        }
        ExpectUniqueKeys(keys, c.window[1].toStdString());
        if (main) {
            ExpectUniqueKeys(main->MenuBar());
            for (const QMenu* menu : main->MenuBar()->findChildren<QMenu*>())
                ExpectUniqueKeys(menu);
        }
        static const QRegularExpression own("^((lbl|blb|cmd|img|pic|fra|cbo|txt|lin|mnu)[A-Z0-9]|Line\\d)");
        for (const QObject* o : window->findChildren<QObject*>())
            EXPECT_TRUE(!own.match(o->objectName()).hasMatch() || listed.contains(o->objectName()))
                << c.window[1].toStdString() << " " << o->objectName().toStdString() << " is not in the table";
        if (window != owner.get())
            delete window;
        owner.reset();
    }

    std::unique_ptr<frmMain> owner;
};
}

TEST_F(LayoutGuard, EveryWindowAsTheTableDrawsItInEveryLanguage)
{
    fs::create_directory_symlink(ZARVO_TRANSLATIONS, directory + "/translations");
    const QList<Case> cases = ReadLayout();
    ASSERT_EQ(cases.size(), 13);
    for (const Row& language : ReadTable(ZARVO_LANGUAGES_TABLE)) {
        LoadLanguage(QLocale(language[0]));
        ASSERT_EQ(UiLanguage(), language[0]);
        for (const Case& c : cases) {
            SCOPED_TRACE((language[0] + " " + c.window[1]).toStdString());
            Check(c);
        }
    }
    LoadLanguage(QLocale("en"));
}
