// CAecProcessMessageReactorManager: the process-wide list of message handlers and the
// filter that offers them a message in turn. The module registers the filter with no host
// hook of its own: the application that owns the handlers calls ProcessMessage.
#pragma once

#include <list>

#include "CAecProcessMessageReactor.h"

class CAecProcessMessageReactorManager {
public:
    static CAecProcessMessageReactorManager& Instance();
    virtual ~CAecProcessMessageReactorManager() = default;

    // A null handler, or one already listed, is ignored; handlers are not owned.
    void AddReactor(CAecProcessMessageReactor* reactor);
    // Removes the first entry equal to reactor.
    void RemoveReactor(CAecProcessMessageReactor* reactor);
    // Offers the message to the handlers in the order they were added, stopping at the
    // first that handles it; false when none does. A left double click in a drawing view
    // comes with the world point under the cursor, in the current user system; any other
    // message with the origin.
    virtual bool ProcessMessage(MSG* msg);

    CAecProcessMessageReactorManager(const CAecProcessMessageReactorManager&) = delete;
    CAecProcessMessageReactorManager& operator=(const CAecProcessMessageReactorManager&) = delete;

protected:
    CAecProcessMessageReactorManager() = default;

private:
    std::list<CAecProcessMessageReactor*> m_reactors;
};
