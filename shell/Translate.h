#pragma once
// The player's language for the texts that plain code builds (messages, prompts, the lines of
// the results): `source` is the English text, which is also what shows without a translation
// (English, a language Zarvo has no translation for, a test); `context` groups the texts as the
// translation files do. The window layer installs the translator. lupdate reads these calls as
// it reads QCoreApplication::translate.
#include <functional>
#include <initializer_list>
#include <string>

using Translator = std::function<std::string(const char* context, const char* source)>;

std::string Translate(const char* context, const char* source);
void SetTranslator(Translator translator);

// Marks a text for the translation files where it is stored to be translated later.
constexpr const char* TranslatableText(const char* /*context*/, const char* source) { return source; }

// `text` with each marker %1 to %9 replaced by the value of its number, in one pass, so that a
// value that holds a marker itself is left as it is.
std::string Arg(const std::string& text, std::initializer_list<std::string> values);
