// Zarvo in every language of Languages.txt: the translation files are complete and keep each text's
// marks; in each language a turn is rolled, accepted and scored, every line the results window
// can show fits it, and the data file keeps its placeholders in English whatever the language.
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include "CaptionFit.h"
#include "DateTime.h"
#include "DataFileFixture.h"
#include "Languages.h"
#include "TableFile.h"
#include "Translate.h"
#include "frmMain.h"
#include "frmPlayerResults.h"
#include "frmPlayers.h"
#include "modCommon.h"

namespace {
// Each message of a translation file: its source, the state of its translation ("unfinished"
// until done) and the translation. A line break is <byte value="xd"/> and a line feed.
QList<QStringList> ReadTranslations(const QString& language)
{
    QFile file(QString(ZARVO_TS_FOLDER) + "/zarvo_" + language + ".ts");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    QList<QStringList> messages;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"source")
            messages.append(QStringList{xml.readElementText(QXmlStreamReader::IncludeChildElements)});
        else if (xml.isStartElement() && xml.name() == u"translation")
            messages.last() << xml.attributes().value("type").toString()
                            << xml.readElementText(QXmlStreamReader::IncludeChildElements);
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

// The marks a translation must keep: the markers %1 to %9, the line breaks, one access key
// where the English has one.
std::string Marks(const QString& text)
{
    static const QRegularExpression marker("%[1-9]");
    QStringList markers;
    for (const auto& m : marker.globalMatch(text))
        markers << m.captured();
    markers.sort();
    return (markers.join(',') + " lines " + QString::number(text.count('\n')) + " keys "
            + QString::number(QString(text).remove("&&").count('&'))).toStdString();
}

using InEachLanguage = DataFileFixture;
}

// Every text of the sources is translated, finished, with the marks of its English (that each file
// holds every text of the sources, and nothing else, is the translations_current test's).
TEST(Translations, CompleteAndKeepTheirMarks)
{
    for (const QStringList& language : ReadTable(ZARVO_LANGUAGES_TABLE).mid(1))
        for (const QStringList& m : ReadTranslations(language[0])) {
            const std::string where = (language[0] + ": " + m[0]).toStdString();
            EXPECT_TRUE(m[1].isEmpty() && !m[2].isEmpty()) << where << " is not translated";
            EXPECT_EQ(Marks(m[2]), Marks(m[0])) << where;
        }
}

// In each language the player reads the game in it while the logic goes by its English texts:
// the remembered placeholder player is asked to roll, "Accept" brings its question, a boxed cell
// is scored, every comment line of the results window fits, a date reads as the language writes
// it, and F1 opens the help in the language. The placeholders chosen in the player dialog are
// stored in English: the file written under one language reads the same under the next.
TEST_F(InEachLanguage, APlayerReadsItWhileTheLogicAndTheFileKeepEnglish)
{
    for (const auto& built : fs::directory_iterator(fs::path(ZARVO_TRANSLATIONS).parent_path()))   // translations, help
        fs::create_symlink(built.path(), directory + "/" + built.path().filename().string());
    fs::remove(DataPath());
    MakeFreshFile();
    Sql("INSERT INTO Setup VALUES (-1, 0, 0, 0); INSERT INTO PlayersInUse VALUES (1, '< Player 1 >');");
    std::vector<std::string> titles;
    SetMsgBoxHandler([&titles](const std::string&, int, const std::string& title) { return titles.push_back(title), int(vbYes); });
    for (const QStringList& language : ReadTable(ZARVO_LANGUAGES_TABLE)) {
        SCOPED_TRACE(language[0].toStdString());
        LoadLanguage(QLocale(language[0]));
        frmMain form;
        form.Form_Load();
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        EXPECT_EQ(form.lblPleaseRoll->Caption().toStdString(), language[3].toStdString());
        EXPECT_EQ(form.dlgHelp.HelpFile, AppFile(language[0] == "en" ? "Zarvo.hlp" : "Zarvo_" + language[0].toStdString() + ".hlp"));
        form.cmdRoll->click();
        form.Logic().tmrRoll_Timer();   // no animation: the roll ends on its first tick
        EXPECT_EQ(form.cmdRoll->text().toStdString(), language[1].toStdString());
        titles.clear();
        form.cmdRoll->click();   // no die marked: the question, answered Yes
        ASSERT_EQ(titles, std::vector{language[2].toStdString()});
        QTest::mouseClick(form.Cell(CatChance), Qt::LeftButton);
        EXPECT_NE(gScores[1][CatChance], EmptyCell);
        EXPECT_EQ(FormatDate({2026, 11, 24}), language[5].toStdString());

        frmPlayerResults results(&form);
        results.show();
        for (const char* line : {"Congratulations, an all-time high!", "An all-time low! Better luck next time!",
                                 "Congratulations, a new session high!", "A new session low! Better luck next time!",
                                 "You bettered your overall average...", "Brought your overall average down...",
                                 "Your overall average didn't change...", "You bettered your session average...",
                                 "Brought your session average down...", "Your session average didn't change..."}) {
            results.lblCurrentInfo->SetCaption(QString::fromStdString(Translate("PlayerStatistics", line)));
            EXPECT_TRUE(InkFits(results.lblCurrentInfo)) << results.lblCurrentInfo->Caption().toStdString();
        }

        frmPlayers players(&form, form.Logic());   // every seat: its placeholder, as the box shows it
        for (int i = 1; i < MaxPlayers; ++i)
            players.cboPlayer[i]->setCurrentIndex(players.cboPlayer[i]->findText(frmPlayers::tr("< Player %1 >").arg(i + 1)));
        players.cmdPlay->click();
        EXPECT_EQ(PlayerDisplayName(8), language[4].toStdString());
        form.close();   // saves the setup
        EXPECT_EQ(Sql("SELECT group_concat(PlayerName, ';') FROM PlayersInUse"), "< Player 1 >;< Player 2 >;< Player 3 >;"
                  "< Player 4 >;< Player 5 >;< Player 6 >;< Player 7 >;< Player 8 >");
    }
    LoadLanguage(QLocale("en"));
}
