// The framework's window classes as the headless host has them: no window ever exists.

#include "afxwin.h"

#include <cstdint>
#include <ctime>

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* cls = this; cls != nullptr; cls = cls->m_pBaseClass) {
        if (cls == base)
            return true;
    }
    return false;
}

namespace {
const CRuntimeClass kObjectClass{"CObject", nullptr};
const CRuntimeClass kWndClass{"CWnd", &kObjectClass};
const CRuntimeClass kViewClass{"CView", &kWndClass};
}  // namespace

CObject::~CObject() = default;
const CRuntimeClass* CObject::GetThisClass() { return &kObjectClass; }
const CRuntimeClass* CObject::GetRuntimeClass() const { return &kObjectClass; }

BOOL CObject::IsKindOf(const CRuntimeClass* cls) const
{
    return GetRuntimeClass()->IsDerivedFrom(cls) ? TRUE : FALSE;
}

CWnd::~CWnd() = default;
const CRuntimeClass* CWnd::GetThisClass() { return &kWndClass; }
const CRuntimeClass* CWnd::GetRuntimeClass() const { return &kWndClass; }

CWnd* CWnd::FromHandle(HWND /*hWnd*/)
{
    return nullptr;
}

void CWnd::ScreenToClient(LPPOINT /*point*/) const {}
void CWnd::ClientToScreen(LPPOINT /*point*/) const {}

CView::~CView() = default;
const CRuntimeClass* CView::GetThisClass() { return &kViewClass; }
const CRuntimeClass* CView::GetRuntimeClass() const { return &kViewClass; }

BOOL GetCursorPos(LPPOINT point)
{
    if (point != nullptr) {
        point->x = 0;
        point->y = 0;
    }
    return FALSE;
}

// The monotonic clock counts from the system's start, as the platform's tick count does;
// the 32-bit value wraps as the platform's does.
DWORD GetTickCount()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    const auto milliseconds =
        static_cast<std::uint64_t>(now.tv_sec) * 1000u + static_cast<std::uint64_t>(now.tv_nsec) / 1000000u;
    return static_cast<DWORD>(milliseconds & 0xFFFFFFFFu);
}
