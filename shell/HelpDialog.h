#pragma once
// The main window's help component: the help file, the help command that says what the next
// display request does, and the request itself. Only the finder is ever asked for; the context
// commands would need a topic number, which the game never gives, so they show nothing.
#include <memory>
#include <string>

class HelpViewer;

constexpr int cdlHelpContext = 1;        // display by context
constexpr int cdlHelpContextPopup = 8;   // pop-up display by context
constexpr int cdlHelpFinder = 11;        // the viewer at its finder: contents, index and search

class HelpDialog {
public:
    HelpDialog();
    ~HelpDialog();

    std::string HelpFile;
    int HelpCommand = 0;

    // The display request. The viewer stays open beside the game and is reused by the next
    // request for the same file.
    void ShowHelp();

private:
    std::unique_ptr<HelpViewer> viewer_;
};
