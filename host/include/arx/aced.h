// Editor services that depend on the drawing window: pixel positions to world points.
// The headless host has no window. It answers for one fixed view: a window of
// kHeadlessViewWidth x kHeadlessViewHeight pixels looking down on the XY plane of the
// world (plan view, no twist) with the world origin at the window's centre and one
// drawing unit per pixel; pixel y grows downwards, world y upwards.
#pragma once

#include "afxwin.h"
#include "gepnt3d.h"

constexpr int kHeadlessViewWidth = 1000;
constexpr int kHeadlessViewHeight = 750;

// The world point under a pixel of the current view (on the view's target plane, z 0).
// The signatures are UNCONFIRMED; these are the documented overloads' natural reading.
ACHOST_API Adesk::Boolean acedCoordFromPixelToWorld(const CPoint& ptIn, AcGePoint3d& ptOut);
// As above for the viewport windnum (the fixed view answers for any non-negative number;
// a negative one answers false).
ACHOST_API Adesk::Boolean acedCoordFromPixelToWorld(int windnum, CPoint ptIn, double ptOut[3]);
