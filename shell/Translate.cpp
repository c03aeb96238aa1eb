#include "Translate.h"

namespace {
Translator& Installed()
{
    static Translator translator;
    return translator;
}
}

std::string Translate(const char* context, const char* source)
{
    return Installed() ? Installed()(context, source) : source;
}

void SetTranslator(Translator translator) { Installed() = std::move(translator); }

std::string Arg(const std::string& text, std::initializer_list<std::string> values)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t number = i + 1 < text.size() && text[i] == '%' ? std::size_t(text[i + 1] - '0') : 0;
        if (number >= 1 && number <= values.size()) {
            result += values.begin()[number - 1];
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}
