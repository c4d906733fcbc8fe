// The few window types of the platform's application framework that host code names:
// messages, points, windows and views. No windows exist in the headless host: a window
// handle never leads to a window (CWnd::FromHandle answers null), and these types only
// let code that handles window messages compile and run.
#pragma once

#include <cstdint>

#include "adesk.h"

#ifndef _WIN32
using BOOL = int;
using UINT = unsigned int;
using LONG = std::int32_t;
using DWORD = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using TCHAR = wchar_t;
using LPCTSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPWSTR = wchar_t*;
struct HWND__;
using HWND = HWND__*;
#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

struct POINT {
    LONG x;
    LONG y;
};
using LPPOINT = POINT*;

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using LPRECT = RECT*;

// A window message as the message loop hands it on.
struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

// Message ids (the platform's numbers).
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;

// The cursor's screen position. Headless: there is no cursor; answers FALSE and (0, 0).
ACHOST_API BOOL GetCursorPos(LPPOINT point);
// Milliseconds since the system started, wrapping to 0 after about 49.7 days.
ACHOST_API DWORD GetTickCount();
#endif

class ACHOST_API CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int initX, int initY) : POINT{initX, initY} {}
    CPoint(POINT initPt) : POINT(initPt) {}

    void Offset(int xOffset, int yOffset)
    {
        x += xOffset;
        y += yOffset;
    }
    bool operator==(const POINT& point) const { return x == point.x && y == point.y; }
    bool operator!=(const POINT& point) const { return !(*this == point); }
    CPoint operator+(const POINT& point) const { return CPoint(x + point.x, y + point.y); }
    CPoint operator-(const POINT& point) const { return CPoint(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
};

// Run-time class information of the framework's objects, for IsKindOf/RUNTIME_CLASS.
struct ACHOST_API CRuntimeClass {
    const char* m_lpszClassName;
    const CRuntimeClass* m_pBaseClass;

    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())
#define DYNAMIC_DOWNCAST(class_name, object) \
    ((object) != nullptr && (object)->IsKindOf(RUNTIME_CLASS(class_name)) ? static_cast<class_name*>(object) : nullptr)

class ACHOST_API CObject {
public:
    virtual ~CObject();
    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;
    BOOL IsKindOf(const CRuntimeClass* cls) const;
};

class ACHOST_API CWnd : public CObject {
public:
    CWnd() = default;
    ~CWnd() override;
    static const CRuntimeClass* GetThisClass();
    const CRuntimeClass* GetRuntimeClass() const override;

    // The window of a handle. Headless: no window exists, so always null.
    static CWnd* FromHandle(HWND hWnd);
    HWND GetSafeHwnd() const { return m_hWnd; }
    // Screen to client coordinates: the identity for a window that is not on any screen.
    void ScreenToClient(LPPOINT point) const;
    void ClientToScreen(LPPOINT point) const;

    HWND m_hWnd = nullptr;
};

class ACHOST_API CView : public CWnd {
public:
    ~CView() override;
    static const CRuntimeClass* GetThisClass();
    const CRuntimeClass* GetRuntimeClass() const override;
};
