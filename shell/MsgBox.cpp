#include "MsgBox.h"

#include <utility>

namespace {
MsgBoxHandler& Handler()
{
    static MsgBoxHandler handler;
    return handler;
}
}

int MsgBox(const std::string& text, int style, const std::string& title)
{
    if (Handler())
        return Handler()(text, style, title);
    // No screen yet (or a test that forgot one): answer with the default button.
    if ((style & 7) == vbYesNo)
        return (style & vbDefaultButton2) ? vbNo : vbYes;
    return vbOK;
}

MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler)
{
    return std::exchange(Handler(), std::move(handler));
}
