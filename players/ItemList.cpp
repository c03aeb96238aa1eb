#include "ItemList.h"

#include <algorithm>

std::string ItemList::Text() const { return ListIndex < 0 ? std::string() : List.at(ListIndex); }

void ItemList::AddItem(const std::string& item, int index)
{
    List.insert(List.begin() + index, item);
    if (ListIndex >= index)
        ++ListIndex;
}

void ItemList::RemoveItem(int index)
{
    List.erase(List.begin() + index);
    if (ListIndex == index)
        ListIndex = -1;
    else if (ListIndex > index)
        --ListIndex;
}

int FindListItem(const std::string& Name, const ItemList& List)
{
    const auto found = std::find(List.List.begin(), List.List.end(), Name);
    return found == List.List.end() ? -1 : int(found - List.List.begin());
}

void InsertSorted(const std::string& Name, ItemList& List)
{
    const auto greater = std::find_if(List.List.begin(), List.List.end(),
                                      [&Name](const std::string& entry) { return entry > Name; });
    List.AddItem(Name, int(greater - List.List.begin()));
}

void RemoveListItem(const std::string& Name, ItemList& List)
{
    const int index = FindListItem(Name, List);
    if (index >= 0)
        List.RemoveItem(index);
}
