// Zarvo in every language of Languages.txt: the translation files are complete and keep each text's
// marks; in each language a turn is rolled, accepted and scored, every line the results window
// can show fits it, and the data file keeps its placeholders in English whatever the language.
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include "CaptionFit.h"
#include "DataFileFixture.h"
#include "Languages.h"
#include "TableFile.h"
#include "Translate.h"
#include "frmMain.h"
#include "frmPlayerResults.h"
#include "frmPlayers.h"
#include "modCommon.h"

namespace {
// The messages of a translation file, each as the texts of its elements by name, "context"
// for the name of its context and "type" for the state of its translation. A line break is
// written as the carriage return <byte value="xd"/> and a line feed; the feeds are counted.
QList<QHash<QString, QString>> ReadTranslations(const QString& language)
{
    QFile file(QString(ZARVO_TS_FOLDER) + "/zarvo_" + language + ".ts");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    QList<QHash<QString, QString>> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString element = xml.name().toString();
        if (element == "message")
            messages.append({{"context", context}});
        else if (element == "translation")
            messages.last()["type"] = xml.attributes().value("type").toString();
        if (element == "name")
            context = xml.readElementText();
        else if (element == "source" || element == "comment" || element == "translation")
            messages.last()[element] = xml.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

// The marks a translation must keep: the markers %1 to %9, the line breaks, one access key
// where the English has one.
QString Marks(const QString& text)
{
    static const QRegularExpression marker("%[1-9]");
    QStringList markers;
    for (const auto& m : marker.globalMatch(text))
        markers << m.captured();
    markers.sort();
    return markers.join(',') + " lines " + QString::number(text.count('\n')) + " keys " +
           QString::number(QString(text).remove("&&").count('&'));
}

using InEachLanguage = DataFileFixture;
}

// Every text of the sources is translated, finished, in every file, with the marks of its English.
TEST(Translations, CompleteAndKeepTheirMarks)
{
    const QList<QStringList> languages = ReadTable(ZARVO_LANGUAGES_TABLE);
    const auto first = ReadTranslations(languages.value(1).value(0));
    ASSERT_GT(first.size(), 150);
    for (const QStringList& language : languages.mid(1)) {
        const auto messages = ReadTranslations(language[0]);
        ASSERT_EQ(messages.size(), first.size()) << language[0].toStdString();
        for (qsizetype i = 0; i < messages.size(); ++i) {
            const auto& m = messages[i];
            const std::string where = (language[0] + " " + m["context"] + ": " + m["source"]).toStdString();
            EXPECT_TRUE(m["type"].isEmpty() && !m["translation"].isEmpty()) << where << " is not translated";
            EXPECT_EQ(Marks(m["translation"]).toStdString(), Marks(m["source"]).toStdString()) << where;
            for (const char* element : {"context", "source", "comment"})
                EXPECT_EQ(m[element], first[i][element]) << where;
        }
    }
}

// In each language the player reads the game in it while the logic goes by its English texts:
// the remembered placeholder player is asked to roll, "Accept" brings its question, a boxed cell
// is scored, and every comment line of the results window fits. A placeholder chosen in the
// player dialog is stored in English: the file written under one language reads the same under
// the next.
TEST_F(InEachLanguage, APlayerReadsItWhileTheLogicAndTheFileKeepEnglish)
{
    fs::create_directory_symlink(ZARVO_TRANSLATIONS, directory + "/translations");
    MakeFreshFile();
    Sql("INSERT INTO Setup VALUES (-1, 0, 0, 0); INSERT INTO PlayersInUse VALUES (1, '< Player 1 >');");
    std::vector<std::string> titles;
    SetMsgBoxHandler([&titles](const std::string&, int, const std::string& title) {
        titles.push_back(title);
        return int(vbYes);
    });
    for (const QStringList& language : ReadTable(ZARVO_LANGUAGES_TABLE)) {
        const std::string accept = language[1].toStdString(), confirm = language[2].toStdString();
        SCOPED_TRACE(language[0].toStdString());
        LoadLanguage(QLocale(language[0]));
        frmMain form;
        form.Form_Load();
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        EXPECT_EQ(form.lblPleaseRoll->Caption(), language[3]);
        form.cmdRoll->click();
        form.Logic().tmrRoll_Timer();   // no animation: the roll ends on its first tick
        EXPECT_EQ(form.cmdRoll->text().toStdString(), accept);
        titles.clear();
        form.cmdRoll->click();   // no die marked: the question, answered Yes
        ASSERT_EQ(titles, std::vector<std::string>{confirm});
        QTest::mouseClick(form.Cell(CatChance), Qt::LeftButton);
        EXPECT_NE(gScores[1][CatChance], EmptyCell);

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
        EXPECT_EQ(QString::fromStdString(PlayerDisplayName(8)), language[4]);
        form.close();   // saves the setup
        EXPECT_EQ(Sql("SELECT group_concat(PlayerName, ';') FROM PlayersInUse"), "< Player 1 >;< Player 2 >;< Player 3 >;"
                  "< Player 4 >;< Player 5 >;< Player 6 >;< Player 7 >;< Player 8 >");
    }
    LoadLanguage(QLocale("en"));
}
