#pragma once
// The help viewer as the game sees it. Qt's help framework, which the viewer is built on, lives
// in a module of its own (libzarvo_helpviewer.so beside the game), loaded at the first request
// for help: a game that is only played never loads it.
#include <QString>

class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual QString HelpFile() const = 0;
    // Brings the window up with the contents in front and their first page shown, whatever
    // page was read before.
    virtual void ShowFinder() = 0;
};

// The module's one entry point: a viewer of this help file.
using CreateHelpViewerFunction = HelpViewer* (*)(const QString& helpFile);
constexpr const char* CreateHelpViewerName = "CreateHelpViewer";
