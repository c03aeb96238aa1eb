#pragma once
// The data file "Zarvo.dat" beside the program. Each piece of work opens it, works through
// gDataDatabase and closes it; no connection stays open between two pieces.
#include "Database.h"

// The engine session of the open file. SQLite needs none, so it carries nothing; it keeps
// its place so that the routines read as their documented steps.
struct Workspace {};

extern Workspace gDataWorkspace;
extern Database gDataDatabase;

// True when the file is open in gDataDatabase. A file that is missing, unreadable, not a
// database, damaged, locked by another program for longer than a moment, or without the
// game's four tables cannot be opened; with ShowError the user is told so. The file is never
// created and nothing is written to it here.
bool OpenDataFile(bool ShowError);

// OpenDataFile(false) for a piece of work that writes: true only when the file also takes
// writes. One that can be read but not written (read-only, on a read-only medium, in a folder
// where no journal can be made, or held by another running game past the busy wait) is
// closed again and counts as a file that does not open; nothing is written to it.
bool OpenDataFileForWriting();

// Harmless when the file is already closed.
void CloseDataFile();
