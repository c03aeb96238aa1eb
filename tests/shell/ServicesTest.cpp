// The plain toolkit services that the logic and the data file use, and the real message box behind them.
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "AppPath.h"
#include "DateTime.h"
#include "MsgBox.h"
#include "QtServices.h"

// Dates read "mmm. d, yyyy" with the English month names of their own table whatever the locale, the day without
// a leading zero.
TEST(DateTime, EveryMonthInEnglish)
{
    std::string all;
    for (int month = 1; month <= 12; ++month)
        all += FormatDate({1999 + month, month, month * 2 + 7}) + "|";
    EXPECT_EQ(all, "Jan. 9, 2000|Feb. 11, 2001|Mar. 13, 2002|Apr. 15, 2003|May. 17, 2004|Jun. 19, 2005|"
                   "Jul. 21, 2006|Aug. 23, 2007|Sep. 25, 2008|Oct. 27, 2009|Nov. 29, 2010|Dec. 31, 2011|");
}

// The program's directory is the folder it was started from, links not resolved: the launcher's per-user folder
// of links to the installed game is the game's directory there. Only a start by name, which names no folder,
// falls back to the real executable's. Files beside the program are joined with one separator.
TEST(Services, AppPathAsStarted)
{
    const std::pair<const char*, const char*> cases[] = {
        {"/home/ann/.local/share/zarvo/Zarvo", "/home/ann/.local/share/zarvo"}, {"/Zarvo", "/"},
        {"build/bin/Zarvo", "/src/build/bin"}, {"./Zarvo", "/src"}, {"Zarvo", "/usr/lib/zarvo"}};
    for (const auto& [started, directory] : cases)
        EXPECT_EQ(AppPathAsStarted(started, "/src", "/usr/lib/zarvo"), directory) << started;
    SetAppPath("/opt/zarvo/");
    EXPECT_EQ(AppPath() + " " + AppFile("Zarvo.dat"), "/opt/zarvo /opt/zarvo/Zarvo.dat");
    SetAppPath("");
    EXPECT_EQ(AppFile("Zarvo.dat"), "./Zarvo.dat");
}

// The real message box: the text with each carriage return and line feed as one break, the icon, the
// buttons and the default button that a style asks for, and the answer of the button pressed.
TEST(MsgBox, StyleAndAnswer)
{
    using B = QMessageBox;
    const struct { const char *text, *shown; int style; B::Icon icon; qsizetype buttons;
                   B::StandardButton initial, press; int answer; } cases[] = {
        {"Satisfied?", "Satisfied?", vbYesNo | vbQuestion | vbDefaultButton2, B::Question, 2, B::No, B::Yes, vbYes},
        {"Take a zero?", "Take a zero?", vbYesNo | vbQuestion, B::Question, 2, B::Yes, B::No, vbNo},
        {"a\r\nb\r\nc", "a\nb\nc", vbOKOnly | vbCritical, B::Critical, 1, B::Ok, B::Ok, vbOK},
    };
    for (const auto& c : cases) {
        QTimer::singleShot(0, [&c] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(std::tuple((box->windowTitle() + "|" + box->text()).toStdString(), box->icon(),
                                 box->buttons().size(), box->defaultButton() == box->button(c.initial)),
                      std::tuple("Zarvo - Confirm|" + std::string(c.shown), c.icon, c.buttons, true));
            box->button(c.press)->click();
        });
        EXPECT_EQ(QtMsgBox(c.text, c.style, "Zarvo - Confirm"), c.answer) << c.text;
    }
}
