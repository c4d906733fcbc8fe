// CAecProcessMessageReactor: a handler that can be offered window messages, with the world
// point under the cursor when the message is a double click in a drawing view.
#pragma once

#include "afxwin.h"
#include "gepnt3d.h"

class CAecProcessMessageReactor {
public:
    virtual ~CAecProcessMessageReactor() = default;
    // True when the message is handled: it is offered to no further handler.
    virtual bool OnProcessMessage(MSG* msg, const AcGePoint3d& worldPoint) = 0;
};
