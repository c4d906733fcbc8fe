// AcDbHostApplicationServices: what the host offers the database layer, chiefly the
// working database that calls without a database argument use.
#pragma once

#include "adesk.h"

class AcDbDatabase;

class ACHOST_API AcDbHostApplicationServices {
public:
    // Null until a database is made the working one; a destroyed database stops being it.
    AcDbDatabase* workingDatabase() const { return m_working; }
    void setWorkingDatabase(AcDbDatabase* database) { m_working = database; }

private:
    AcDbDatabase* m_working = nullptr;
};

ACHOST_API AcDbHostApplicationServices* acdbHostApplicationServices();
