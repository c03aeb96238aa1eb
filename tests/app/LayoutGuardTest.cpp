// Every window of the game against the layout table (WindowLayout.txt): each named control at
// its rectangle in twips, with its caption, alignment and visibility, and no control that the
// table does not name; every caption that shows must fit its control, and no two access keys of
// a window or menu may be the same. It runs in English, German and French, where a caption is
// the translation of the table's; and once more at twice the pixel density.
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>

#include "CaptionFit.h"
#include "DataFileFixture.h"
#include "Frame.h"
#include "Label.h"
#include "Languages.h"
#include "QtServices.h"
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
// One row of the table.
struct Expected {
    QString name, kind;          // kind: "control", "line" or "menu"
    QList<int> numbers;          // left, top, width, height; or x1, y1, x2, y2
    QString align, caption, shortcut;
    bool shown = true;
    QString comment;             // tells equal English captions apart in the translation files
};
struct Case {
    QString id, title;
    int width = 0, height = 0;
    QList<Expected> controls;
};

// The words of a row; a quoted text is one word, without its quotes.
QStringList Words(const QString& row)
{
    static const QRegularExpression word(R"("([^"]*)\"|(\S+))");
    QStringList words;
    for (const auto& m : word.globalMatch(row))
        words << (m.capturedStart(1) >= 0 ? m.captured(1) : m.captured(2));
    return words;
}

QList<Case> ReadLayout()
{
    QFile file(ZARVO_LAYOUT_TABLE);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << ZARVO_LAYOUT_TABLE;
    QList<Case> cases;
    for (const QString& row : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList w = Words(row);
        if (w.isEmpty() || w[0].startsWith('#'))
            continue;
        if (w[0] == "window") {
            cases.append({w[1], w[4], w[2].toInt(), w[3].toInt(), {}});
        } else if (w[1] == "line") {
            cases.last().controls.append({w[0], w[1], {w[2].toInt(), w[3].toInt(), w[4].toInt(), w[5].toInt()}});
        } else if (w[1] == "menu") {
            cases.last().controls.append({w[0], w[1], {}, "-", w[2], w[3]});
        } else {
            Expected e{w[0], "control", {w[1].toInt(), w[2].toInt(), w[3].toInt(), w[4].toInt()}, w[5], w[7]};
            e.shown = w[6] == "shown";
            e.comment = w.value(8);
            cases.last().controls.append(e);
        }
    }
    return cases;
}

// The controls a window names as the game's own: lbl, cmd, img, pic, fra, cbo, txt, mnu and lines.
bool IsNamedControl(const QObject* o)
{
    static const QRegularExpression own("^((lbl|blb|cmd|img|pic|fra|cbo|txt|lin|mnu)[A-Z0-9]|Line\\d)");
    return own.match(o->objectName()).hasMatch();
}

QString AlignmentName(Align a) { return a == Align::Left ? "left" : a == Align::Centre ? "centre" : "right"; }

QString CaptionOf(const QWidget* w)
{
    if (auto* label = qobject_cast<const Label*>(w))
        return label->Caption();
    if (auto* frame = dynamic_cast<const Frame*>(w))
        return frame->Caption();
    if (auto* button = qobject_cast<const QPushButton*>(w))
        return button->text();
    if (auto* box = qobject_cast<const QComboBox*>(w))
        return box->currentText();
    if (auto* text = qobject_cast<const QLineEdit*>(w))
        return text->text();
    return "-";
}

// The letters after "&" in these texts, the access keys, are all different.
void ExpectUniqueKeys(const QStringList& texts, const std::string& where)
{
    QStringList keys;
    for (const QString& text : texts)
        if (const qsizetype amp = text.indexOf('&'); amp >= 0 && amp + 1 < text.size())
            keys << text.mid(amp + 1, 1).toLower();
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << where << ": " << keys.join(' ').toStdString();
}

// A caption that shows fits: a label's ink lies within it, a button's or frame's text within
// its margins.
void ExpectFits(const QWidget* w, const QString& where)
{
    if (!w->isVisible())
        return;
    const QString text = QString(CaptionOf(w)).remove('&');
    if (auto* label = qobject_cast<const Label*>(w)) {
        if (!text.isEmpty())
            EXPECT_TRUE(w->height() > 0 && InkFits(label)) << where.toStdString() << " does not hold \"" << text.toStdString() << '"';
    } else if (qobject_cast<const QPushButton*>(w) || dynamic_cast<const Frame*>(w)) {
        const int margin = qobject_cast<const QPushButton*>(w) ? 8 : 16;
        EXPECT_LE(QFontMetrics(w->font()).horizontalAdvance(text), w->width() - margin) << where.toStdString();
    }
}

class LayoutGuard : public DataFileFixture {
protected:
    // Opens the window of a case in its state; owner is the game table some dialogs need.
    // The window's class names the context of its texts in the translation files.
    QWidget* Open(const QString& id, const char*& context)
    {
        const QStringList part = id.split('-');
        fs::remove(DataPath());
        if (part[0] != "main" && !id.endsWith("nofile"))
            MakeFreshFile();
        owner = std::make_unique<frmMain>();
        owner->Form_Load();
        const int players = part.size() > 1 ? part[1].toInt() : 1;
        gPlayerNames.ReDim(std::max(players, 1));
        for (int p = 1; p <= gPlayerNames.UBound(); ++p)
            gPlayerNames[p] = "< Player " + std::to_string(p) + " >";
        gScores.ReDim(gPlayerNames.UBound()), ClearScoreboard(), ClearSessionStats(), gCurrentPlayer = 1;
        gHighScoreName = "Player 1";
        const std::tuple<const char*, const char*, std::function<QWidget*()>> windows[] = {
            {"main", "frmMain", [this] { return owner.get(); }},
            {"players", "frmPlayers", [this] { return new frmPlayers(owner.get(), owner->Logic()); }},
            {"results", "frmPlayerResults", [this] {
                 auto* results = new frmPlayerResults(owner.get());
                 results->ShowValues();
                 return results;
             }},
            {"notify", "frmHighScoreNotify", [this] { return new frmHighScoreNotify(owner.get()); }},
            {"highscores", "frmHighScores", [this] { return new frmHighScores(owner.get()); }},
            {"summary", "frmSummary", [this] { return new frmSummary(owner.get()); }},
            {"newgame", "frmNewGame", [this] { return new frmNewGame(owner.get()); }},
            {"about", "frmAbout", [this] { return new frmAbout(owner.get()); }},
        };
        for (const auto& [name, className, open] : windows)
            if (part[0] == name) {
                context = className;
                return open();
            }
        ADD_FAILURE() << "no window for " << id.toStdString();
        return nullptr;
    }

    // The table's English text as the window must show it: its translation where the language has
    // one; a text built at run time ("Player 1's Scoreboard") is compared in English only.
    static std::optional<QString> Shown(const QString& english, const char* context, const QString& comment = {})
    {
        const QString translated = QCoreApplication::translate(
            context, english.toUtf8().constData(), comment.isEmpty() ? nullptr : comment.toUtf8().constData());
        if (UiLanguage() != "en" && translated == english)
            return std::nullopt;
        return translated;
    }

    void Check(const Case& c)
    {
        const char* context = nullptr;
        QWidget* window = Open(c.id, context);
        ASSERT_TRUE(window);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        const auto* main = qobject_cast<QMainWindow*>(window);
        const QWidget* client = main ? main->centralWidget() : window->findChild<QWidget*>("imgMain")
                                                                   ? window->findChild<QWidget*>("imgMain")->parentWidget()
                                                                   : window;
        EXPECT_EQ(std::tuple(PixelsToTwips(client->width()), PixelsToTwips(client->height()), window->windowTitle().toStdString()),
                  std::tuple(c.width, c.height, Shown(c.title, context).value_or(window->windowTitle()).toStdString()));
        QSet<QString> listed;
        QStringList keys;   // the captions of the window's buttons
        for (const Expected& e : c.controls) {
            const std::string where = (c.id + " " + e.name).toStdString();
            listed << e.name;
            if (e.kind == "menu") {
                auto* item = window->findChild<QObject*>(e.name);
                auto* action = qobject_cast<QAction*>(item) ? qobject_cast<QAction*>(item)
                                                            : item ? qobject_cast<QMenu*>(item)->menuAction() : nullptr;
                ASSERT_TRUE(action) << where;
                EXPECT_EQ(std::tuple(action->text().toStdString(), action->shortcut().toString().toStdString()),
                          std::tuple(Shown(e.caption, context).value_or(action->text()).toStdString(),
                                     e.shortcut == "-" ? "" : e.shortcut.toStdString())) << where;
                continue;
            }
            const QWidget* w = window->findChild<QWidget*>(e.name);
            ASSERT_TRUE(w) << where << " is missing";
            if (e.kind == "line") {
                const auto* line = dynamic_cast<const Line*>(w);
                ASSERT_TRUE(line) << where;
                EXPECT_EQ(QList<int>({line->X1(), line->Y1(), line->X2(), line->Y2()}), e.numbers) << where;
                continue;
            }
            const TwipRect place = PlaceOf(w);
            EXPECT_EQ(QList<int>({place.left, place.top, place.width, place.height}), e.numbers) << where;
            // The pixels stand where the twips say.
            EXPECT_EQ(w->geometry(), QRect(TwipsToPixels(place.left), TwipsToPixels(place.top),
                                           TwipsToPixels(place.width), TwipsToPixels(place.height))) << where;
            EXPECT_EQ(!w->isHidden(), e.shown) << where;
            if (auto* label = qobject_cast<const Label*>(w); label && e.align != "-")
                EXPECT_EQ(AlignmentName(label->Alignment()).toStdString(), e.align.toStdString()) << where;
            if (e.caption != "*" && e.caption != "-")
                EXPECT_EQ(CaptionOf(w).toStdString(), Shown(e.caption, context, e.comment).value_or(CaptionOf(w)).toStdString())
                    << where;
            ExpectFits(w, c.id + " " + e.name);
            if (qobject_cast<const QPushButton*>(w) && !w->isHidden())
                keys << CaptionOf(w);
        }
        ExpectUniqueKeys(keys, c.id.toStdString());
        if (auto* bar = main ? main->menuBar() : nullptr) {
            QStringList menus;
            for (QAction* menu : bar->actions()) {
                menus << menu->text();
                QStringList items;
                for (QAction* item : menu->menu()->actions())
                    items << item->text();
                ExpectUniqueKeys(items, menu->text().toStdString());
            }
            ExpectUniqueKeys(menus, "the menu bar");
        }
        for (const QObject* o : window->findChildren<QObject*>())
            if (IsNamedControl(o))
                EXPECT_TRUE(listed.contains(o->objectName())) << (c.id + " " + o->objectName()).toStdString() << " is not in the table";
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
    for (const char* language : {"en", "de", "fr"}) {
        LoadLanguage(QLocale(language));
        ASSERT_EQ(UiLanguage(), language);
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(language) + " " + c.id.toStdString());
            Check(c);
        }
    }
    LoadLanguage(QLocale("en"));
}
