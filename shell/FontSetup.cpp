#include "FontSetup.h"

#include <fontconfig/fontconfig.h>

namespace {
bool NamesACache(FcConfig* config)
{
    FcStrList* caches = FcConfigGetCacheDirs(config);
    const bool named = caches && FcStrListNext(caches);
    if (caches)
        FcStrListDone(caches);
    return named;
}
}

// fontconfig's own start, which Qt calls at the first text, also parses the description of every
// optional rule file it ships, for its listing tool only: about a third of its time at start.
// This builds the configuration as that start does, from the system's and the user's files, and
// makes it the one in force. Where they cannot be read, or name no cache (fontconfig's own start
// then adds its default ones), that start is left to do it all.
void ReadFontConfiguration()
{
    FcConfig* config = FcConfigCreate();
    if (!config)
        return;
    if (FcConfigParseAndLoad(config, nullptr, FcTrue) && NamesACache(config))
        FcConfigSetCurrent(config);   // which also lists the fonts
    FcConfigDestroy(config);          // the configuration in force keeps its own reference
}
