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

bool Install(const QString& file, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, folder) || !QCoreApplication::installTranslator(translator.get()))
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
        const QString language = QLocale(name).name().section('_', 0, 0);
        if (language == "en" || language == "C")
            return;
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
