// CAecProcessMessageReactorManager: handlers and the message filter.
#include "CAecProcessMessageReactorManager.h"

#include <algorithm>

#include "aced.h"
#include "acedads.h"

CAecProcessMessageReactorManager& CAecProcessMessageReactorManager::Instance()
{
    static CAecProcessMessageReactorManager manager;
    return manager;
}

void CAecProcessMessageReactorManager::AddReactor(CAecProcessMessageReactor* reactor)
{
    if (reactor == nullptr || std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end())
        return;
    m_reactors.push_back(reactor);
}

void CAecProcessMessageReactorManager::RemoveReactor(CAecProcessMessageReactor* reactor)
{
    const auto found = std::find(m_reactors.begin(), m_reactors.end(), reactor);
    if (found != m_reactors.end())
        m_reactors.erase(found);
}

bool CAecProcessMessageReactorManager::ProcessMessage(MSG* msg)
{
    AcGePoint3d world = AcGePoint3d::kOrigin;
    if (msg != nullptr && msg->message == WM_LBUTTONDBLCLK) {
        CWnd* window = CWnd::FromHandle(msg->hwnd);
        if (window != nullptr && window->IsKindOf(CView::GetThisClass())) {
            CPoint cursor;
            GetCursorPos(&cursor);
            window->ScreenToClient(&cursor);
            AcGePoint3d display;
            if (acedCoordFromPixelToWorld(cursor, display)) {
                // From the display system (2) to the current user system (1); not a displacement.
                resbuf from{};
                from.restype = RTSHORT;
                from.resval.rint = 2;
                resbuf to{};
                to.restype = RTSHORT;
                to.resval.rint = 1;
                ads_point in = {display.x, display.y, display.z};
                ads_point out = {0.0, 0.0, 0.0};
                if (acedTrans(in, &from, &to, 0, out) == RTNORM)
                    world.set(out[0], out[1], out[2]);
            }
        }
    }
    for (CAecProcessMessageReactor* reactor : m_reactors)
        if (reactor->OnProcessMessage(msg, world))
            return true;
    return false;
}
