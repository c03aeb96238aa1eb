#pragma once
// The help file as the viewer reads it. The help engine keeps its list of help files, its
// index and its full-text search data in a collection that it must be able to write, while
// the help file may lie in a read-only program folder; so each viewer registers the help file
// in a collection of its own, in a temporary folder, and has its words indexed for the search.
#include <QHelpEngine>
#include <QTemporaryDir>

class HelpCollection {
public:
    explicit HelpCollection(const QString& helpFile);

    QHelpEngine& Engine() { return engine_; }
    // False for a help file that is missing or no help file at all.
    bool Registered() const { return registered_; }

private:
    QTemporaryDir folder_;
    QHelpEngine engine_;
    bool registered_ = false;
};
