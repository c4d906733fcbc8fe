// LinkageChangeCollector: records which panels a drag changed, for the layout application
// to update the panels linked to them (merge and corner groups, numbering). The
// application enables it, opens a collecting window around an edit and reads the records
// afterwards; the panels feed it when a drag of theirs ends.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adesk.h"
#include "dbid.h"

namespace DbxPanel {

// What changed about an entity. The field order stays as it is: the application reads
// records of this layout.
struct EntityChangeDetail {
    static constexpr Adesk::Int32 kDragFinished = 1;

    Adesk::Int32 changeKind = 0;
    // The panel's length along its laying direction, measured along the slope, when the
    // drag started.
    double lengthBefore = 0.0;
    // Left at 0.0 by the panel; for the application's own records.
    double lengthAfter = 0.0;
    double widthBefore = 0.0;
    double widthAfter = 0.0;
    // The tick count (milliseconds since the system started) when the change ended.
    Adesk::UInt32 tickCount = 0;
    std::wstring text;
};

struct ChangeRecord {
    AcDbObjectId id;
    EntityChangeDetail detail;
};

class LinkageChangeCollector {
public:
    using Callback = void (*)(AcDbObjectId, const EntityChangeDetail*);

    // The module's one collector, made on first use.
    static LinkageChangeCollector& Instance();
    // Ends the collector when the module unloads; the next Instance() makes a new one.
    static void DestroyInstance();

    void EnableCollection() { m_enabled = true; }
    // Disabled, with every record gone.
    void DisableCollection();
    bool IsEnabled() const { return m_enabled; }
    bool IsCollecting() const { return m_collecting; }
    // Opens a window with no records; nothing happens while disabled.
    void StartCollecting();
    // Closes the window; the records stay to be read.
    void StopCollecting() { m_collecting = false; }
    // Closes the window and forgets the records; stays enabled.
    void ForceReset();
    void Clear() { m_changes.clear(); }
    // Kept only while enabled and collecting, and for a real id.
    void RecordChange(AcDbObjectId id, const EntityChangeDetail& detail);
    const std::vector<ChangeRecord>& GetAllChanges() const { return m_changes; }
    // Kept for the application that owns the window; the collector never calls it.
    void SetCallback(Callback callback) { m_callback = callback; }
    Callback GetCallback() const { return m_callback; }

    LinkageChangeCollector(const LinkageChangeCollector&) = delete;
    LinkageChangeCollector& operator=(const LinkageChangeCollector&) = delete;

private:
    LinkageChangeCollector() = default;
    ~LinkageChangeCollector() = default;
    friend struct std::default_delete<LinkageChangeCollector>;

    bool m_enabled = false;
    bool m_collecting = false;
    std::vector<ChangeRecord> m_changes;
    Callback m_callback = nullptr;
};

}  // namespace DbxPanel
