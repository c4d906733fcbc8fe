// The host's services to the database layer: one instance for the process.
#include "dbapserv.h"

AcDbHostApplicationServices* acdbHostApplicationServices()
{
    static AcDbHostApplicationServices services;
    return &services;
}
