#pragma once
// A list of the player dialog as its rules see it: ordered text entries, a selected index and
// a visible flag. The window shows such a list in a drop-down box; the rules never touch the
// widget, so an entry inserted or removed ahead of the selection moves nothing and runs no
// click, as the rules expect.
#include <string>
#include <vector>

struct ItemList {
    std::vector<std::string> List;
    int ListIndex = -1;      // -1 when nothing is selected
    bool Visible = false;

    // The selected entry, or the empty text when nothing is selected.
    std::string Text() const;
    // The selected entry stays selected when the change lies ahead of it; removing the
    // selected entry itself leaves nothing selected.
    void AddItem(const std::string& item, int index);
    void RemoveItem(int index);
};

// The index of the first entry exactly equal to Name, case included; -1 when none is.
int FindListItem(const std::string& Name, const ItemList& List);

// Puts Name before the first entry greater than it by character code, case included, or at
// the end: digits and the blank come before "<", and "<" before every letter.
void InsertSorted(const std::string& Name, ItemList& List);

// Removes the first entry equal to Name, if the list holds one.
void RemoveListItem(const std::string& Name, ItemList& List);
