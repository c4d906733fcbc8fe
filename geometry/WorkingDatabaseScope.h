// WorkingDatabaseScope: makes a drawing the host's working database for a scope and puts
// the previous one back. Texts made from labels resolve their style in the working
// database; an entity that makes them while drawing or exploding makes them in its own
// drawing, whichever drawing the host is working in (or none).
#pragma once

#include "dbapserv.h"

class WorkingDatabaseScope {
public:
    // A null db leaves the working database as it is.
    explicit WorkingDatabaseScope(AcDbDatabase* db)
        : m_previous(acdbHostApplicationServices()->workingDatabase()), m_changed(db != nullptr)
    {
        if (m_changed)
            acdbHostApplicationServices()->setWorkingDatabase(db);
    }
    ~WorkingDatabaseScope()
    {
        if (m_changed)
            acdbHostApplicationServices()->setWorkingDatabase(m_previous);
    }
    WorkingDatabaseScope(const WorkingDatabaseScope&) = delete;
    WorkingDatabaseScope& operator=(const WorkingDatabaseScope&) = delete;

private:
    AcDbDatabase* m_previous;
    bool m_changed;
};
