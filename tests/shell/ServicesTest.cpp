// The plain toolkit services that the logic and the data file use, and the real message box behind them.
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "AppPath.h"
#include "DateTime.h"
#include "MsgBox.h"
#include "NumberText.h"
#include "QtServices.h"

// Str keeps a blank for the sign from 0 up; display rounding sends ties to the even neighbour, negatives too.
TEST(NumberText, StrAndRoundingToEven)
{
    EXPECT_EQ(Str(0) + Str(1270) + Str(-5), " 0 1270-5");
    for (const auto& [value, rounded] : {std::pair{245.5, 246L}, {246.5, 246L}, {0.5, 0L}, {1.5, 2L}, {2.5, 2L},
                                         {-0.5, 0L}, {-1.5, -2L}, {245.49, 245L}, {245.51, 246L}})
        EXPECT_EQ(RoundToEven(value), rounded) << value;
}

// Dates read "mmm. d, yyyy" in English, the day without a leading zero; the clock can be pinned and let go.
TEST(DateTime, FormatAndPinnedClock)
{
    EXPECT_EQ(FormatDate({2026, 11, 3}) + " / " + FormatDate({1999, 1, 31}), "Nov. 3, 2026 / Jan. 31, 1999");
    SetClock([] { return DateTime{2026, 2, 28, 13, 5, 7, 250}; });
    EXPECT_DOUBLE_EQ(Now().SecondsSinceMidnight(), 13 * 3600 + 5 * 60 + 7.25);
    SetClock({});
}

// Files beside the program are joined with one separator, whatever the path was given with.
TEST(Services, AppPath)
{
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
