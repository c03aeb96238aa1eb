#include "HelpCollection.h"

#include <QHelpSearchEngine>

HelpCollection::HelpCollection(const QString& helpFile) : engine_(folder_.filePath("Zarvo.qhc"))
{
    engine_.setReadOnly(false);   // a read-only engine would not even create its collection
    engine_.setupData();   // creates the collection
    registered_ = engine_.registerDocumentation(helpFile);
    engine_.setupData();   // takes in the help file, before the index of words is built
    if (registered_)
        engine_.searchEngine()->reindexDocumentation();   // in the background; search waits for it
}
