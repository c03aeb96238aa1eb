#include "FontSetup.h"

#include <fontconfig/fontconfig.h>

// fontconfig's own start, which Qt calls at the first text, also parses the description of every
// optional rule file it ships, for its listing tool only: about a third of its time at start.
// This builds the configuration as that start does, from the system's and the user's files, and
// makes it the one in force. Where they cannot be read, or name no cache, fontconfig's own start
// is left to make its fallback.
void ReadFontConfiguration()
{
    FcConfig* config = FcConfigCreate();
    if (!config)
        return;
    if (FcConfigParseAndLoad(config, nullptr, FcTrue)) {
        FcStrList* caches = FcConfigGetCacheDirs(config);
        const bool cached = caches && FcStrListNext(caches);
        if (caches)
            FcStrListDone(caches);
        if (cached && FcConfigBuildFonts(config))
            FcConfigSetCurrent(config);
    }
    FcConfigDestroy(config);   // the configuration in force keeps its own reference
}
