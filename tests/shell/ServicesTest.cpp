// The plain toolkit services that the logic and the data file use, and the real message box behind them.
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>
#include <set>

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
    const std::tuple<const char*, int, std::string, B::StandardButton, int> cases[] = {   // shown: icon, buttons, default
        {"Satisfied?", vbYesNo | vbQuestion | vbDefaultButton2, "Satisfied? 4 2 No", B::Yes, vbYes},
        {"Take a zero?", vbYesNo | vbQuestion, "Take a zero? 4 2 Yes", B::No, vbNo},
        {"a\r\nb", vbOKOnly | vbCritical, "a\nb 3 1 OK", B::Ok, vbOK}};
    for (const auto& [text, style, shown, press, answer] : cases) {
        QTimer::singleShot(0, [&shown, press] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_EQ(QString("%1|%2 %3 %4 %5").arg(box->windowTitle(), box->text()).arg(box->icon()).arg(box->buttons().size())
                          .arg(box->defaultButton()->text().remove('&')).toStdString(), "Zarvo - Confirm|" + shown);
            box->button(press)->click();
        });
        EXPECT_EQ(QtMsgBox(text, style, "Zarvo - Confirm"), answer) << text;
    }
}

// The font configuration in force (the test's start reads it as the game's does) is the one fontconfig's own
// start builds: the same rule files, so the same substitutions and rendering, and the same fonts...
TEST(Services, FontConfigurationAsFontconfigBuildsIt)
{
    const auto files = [](FcConfig* config) {
        std::set<std::string> names;
        FcStrList* list = FcConfigGetConfigFiles(config);
        while (const FcChar8* name = FcStrListNext(list))
            names.insert(reinterpret_cast<const char*>(name));
        FcStrListDone(list);
        FcPattern* all = FcPatternCreate();
        FcObjectSet* file = FcObjectSetBuild(FC_FILE, nullptr);
        FcFontSet* fonts = FcFontList(config, all, file);
        for (int i = 0; i < fonts->nfont; ++i)
            if (FcChar8* path = nullptr; FcPatternGetString(fonts->fonts[i], FC_FILE, 0, &path) == FcResultMatch)
                names.insert("font " + std::string(reinterpret_cast<const char*>(path)));
        FcFontSetDestroy(fonts);
        FcObjectSetDestroy(file);
        FcPatternDestroy(all);
        return names;
    };
    FcConfig* own = FcInitLoadConfigAndFonts();
    const std::set<std::string> expected = files(own);
    FcConfigDestroy(own);
    FcConfig* current = FcConfigGetCurrent();
    EXPECT_EQ(files(current), expected);
    EXPECT_TRUE(expected.count("font /usr/share/fonts/truetype/liberation/LiberationSansNarrow-Regular.ttf"));
    // ...but without reading the rule files that are not in force, as fontconfig's own start does for its listing.
    int unused = 0;
    FcConfigFileInfoIter file;
    FcConfigFileInfoIterInit(current, &file);
    do
        if (FcBool used = FcTrue; FcConfigFileInfoIterGet(current, &file, nullptr, nullptr, &used) && !used)
            ++unused;
    while (FcConfigFileInfoIterNext(current, &file));
    EXPECT_EQ(unused, 0);
}
