#pragma once
// Controls carry their documented names ("cmdOK", "lblName(3)"), so that a test, a debugger or
// an accessibility tool finds them as the layout tables name them.
#include <QString>
#include <QWidget>
#include <initializer_list>
#include <iterator>
#include <utility>

inline void SetNames(std::initializer_list<std::pair<QObject*, const char*>> controls)
{
    for (const auto& [control, name] : controls)
        control->setObjectName(name);
}

// A control array: each member is named with its index; the unused slot 0 of an array counted
// from 1 stays empty.
template <class Array>
void SetArrayName(const Array& controls, const char* name)
{
    for (std::size_t i = 0; i < std::size(controls); ++i)
        if (controls[i])
            controls[i]->setObjectName(QString("%1(%2)").arg(name).arg(i));
}
