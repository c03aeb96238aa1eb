#include "Languages.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>
#include <vector>

#include "AppPath.h"

namespace {
QString& Language()
{
    static QString language = "en";
    return language;
}

std::vector<std::unique_ptr<QTranslator>>& Installed()
{
    static std::vector<std::unique_ptr<QTranslator>> translators;
    return translators;
}

// Only the file of exactly this name: QTranslator would fall back from "zarvo_de_DE" to
// "zarvo_de" on its own, and the language in force would not be the one loaded.
bool Install(const QString& file, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!QFileInfo::exists(folder + '/' + file + ".qm") || !translator->load(file, folder) || !QCoreApplication::installTranslator(translator.get()))
        return false;
    Installed().push_back(std::move(translator));
    return true;
}
}

void LoadLanguage(const QLocale& locale)
{
    for (const auto& translator : Installed())
        QCoreApplication::removeTranslator(translator.get());
    Installed().clear();
    Language() = "en";
    const QString ours = QString::fromStdString(AppFile("translations"));
    const QString qts = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const QString& name : locale.uiLanguages()) {
        const QLocale wanted(name);
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C)
            return;
        // "pt_BR" before "pt": a language kept apart by country is asked for by its full name.
        for (const QString& language : {wanted.name(), wanted.name().section('_', 0, 0)})
            if (Install("zarvo_" + language, ours)) {
                Language() = language;
                Install("qtbase_" + language, qts);
                Install("qt_help_" + language, qts);
                return;
            }
    }
}

QString UiLanguage() { return Language(); }

std::string HelpFileName()
{
    const std::string translated = AppFile("Zarvo_" + Language().toStdString() + ".hlp");
    return QFileInfo::exists(QString::fromStdString(translated)) ? translated : AppFile("Zarvo.hlp");
}
