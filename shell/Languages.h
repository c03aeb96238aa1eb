#pragma once
// The player's language. Zarvo's own texts come from translations/zarvo_<language>.qm beside the
// program, Qt's own (the buttons of a message box, the help's search) from Qt's translations.
// English, in which the texts are written, needs no file. A language Zarvo has no translation
// for shows English, Qt's texts too, so that no window mixes two languages.
#include <QString>
#include <string>

class QLocale;

// Takes the first of the locale's languages that is English or that Zarvo is translated into,
// in place of the language loaded before.
void LoadLanguage(const QLocale& locale);
// The language in force: "en", or the name of its translation ("de", "pt_BR").
QString UiLanguage();
// The help in the language in force: Zarvo_<language>.hlp beside the program where there is
// one, else Zarvo.hlp.
std::string HelpFileName();
