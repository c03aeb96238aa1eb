// Every window of the game against the layout table (WindowLayout.txt): each named control at
// its rectangle in twips, with its caption, alignment and visibility, and no control that the
// table does not name; then every caption that shows must fit its control. The same test runs
// at twice the pixel density.
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <memory>

#include "DataFileFixture.h"
#include "Frame.h"
#include "Label.h"
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

// Ink of `text` drawn as the label draws it, on a canvas three times its size: none may fall
// outside the label's own rectangle (less its border).
bool InkFits(const Label* label)
{
    const qreal ratio = label->devicePixelRatioF();
    const QSize size = label->size() - QSize(2, 2) * label->BorderStyle();
    QImage canvas(size * 3 * ratio, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    const QRect inside(QPoint(size.width(), 0), size);
    {
        QPainter painter(&canvas);
        painter.setFont(label->font());
        const int across = label->Alignment() == Align::Centre ? Qt::AlignHCenter
                           : label->Alignment() == Align::Right ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(QRect(inside.topLeft(), QSize(size.width(), size.height() * 3)),
                         across | Qt::AlignTop | Qt::TextWordWrap, label->Caption());
    }
    const QRect allowed = QRectF(QPointF(inside.topLeft()) * ratio, QSizeF(inside.size()) * ratio).toAlignedRect();
    QRect ink;
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            if (qAlpha(canvas.pixel(x, y)))
                ink |= QRect(x, y, 1, 1);
    return allowed.contains(ink);
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
    QWidget* Open(const QString& id)
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
        if (part[0] == "main")
            return owner.get();
        if (part[0] == "players")
            return new frmPlayers(owner.get(), owner->Logic());
        if (part[0] == "results") {
            auto* results = new frmPlayerResults(owner.get());
            results->ShowValues();
            return results;
        }
        if (part[0] == "notify")
            return new frmHighScoreNotify(owner.get());
        if (part[0] == "highscores")
            return new frmHighScores(owner.get());
        if (part[0] == "summary")
            return new frmSummary(owner.get());
        if (part[0] == "newgame")
            return new frmNewGame(owner.get());
        return new frmAbout(owner.get());
    }

    void Check(const Case& c)
    {
        QWidget* window = Open(c.id);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        const auto* main = qobject_cast<QMainWindow*>(window);
        const QWidget* client = main ? main->centralWidget() : window->findChild<QWidget*>("imgMain")
                                                                   ? window->findChild<QWidget*>("imgMain")->parentWidget()
                                                                   : window;
        EXPECT_EQ(std::tuple(PixelsToTwips(client->width()), PixelsToTwips(client->height()), window->windowTitle().toStdString()),
                  std::tuple(c.width, c.height, c.title.toStdString()));
        QSet<QString> listed;
        for (const Expected& e : c.controls) {
            const std::string where = (c.id + " " + e.name).toStdString();
            listed << e.name;
            if (e.kind == "menu") {
                auto* item = window->findChild<QObject*>(e.name);
                auto* action = qobject_cast<QAction*>(item) ? qobject_cast<QAction*>(item)
                                                            : item ? qobject_cast<QMenu*>(item)->menuAction() : nullptr;
                ASSERT_TRUE(action) << where;
                EXPECT_EQ(std::tuple(action->text().toStdString(), action->shortcut().toString().toStdString()),
                          std::tuple(e.caption.toStdString(), e.shortcut == "-" ? "" : e.shortcut.toStdString())) << where;
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
                EXPECT_EQ(CaptionOf(w).toStdString(), e.caption.toStdString()) << where;
            ExpectFits(w, c.id + " " + e.name);
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

TEST_F(LayoutGuard, EveryWindowAsTheTableDrawsIt)
{
    const QList<Case> cases = ReadLayout();
    ASSERT_EQ(cases.size(), 13);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id.toStdString());
        Check(c);
    }
}
