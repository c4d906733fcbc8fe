// AecPolyOpeningInspectModeGuard: turns the current document's inspect mode on or off for
// a scope and puts the previous setting back when the scope ends.
#pragma once

class AecPolyOpeningInspectModeGuard {
public:
    explicit AecPolyOpeningInspectModeGuard(bool inspectMode);
    ~AecPolyOpeningInspectModeGuard();
    AecPolyOpeningInspectModeGuard(const AecPolyOpeningInspectModeGuard&) = delete;
    AecPolyOpeningInspectModeGuard& operator=(const AecPolyOpeningInspectModeGuard&) = delete;

private:
    bool m_previous;
};
