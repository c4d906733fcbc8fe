// CloneNotifier: sends the clone notifications of the system's event object to its
// reactors. A reactor removed during a notification is not told again.
#pragma once

#include "acadstrc.h"

class AcDbDatabase;
class AcDbIdMapping;

namespace hostdb {

class CloneNotifier {
public:
    static void beginDeepClone(AcDbDatabase* to, AcDbIdMapping& map);
    static void beginWblockObjects(AcDbDatabase* from, AcDbIdMapping& map);
    // Answers the first status other than eOk that a reactor set (later reactors are not asked).
    static Acad::ErrorStatus beginDeepCloneXlation(AcDbIdMapping& map);
    static void abortDeepClone(AcDbIdMapping& map);
    static void endDeepClone(AcDbIdMapping& map);

private:
    // Calls tell on every reactor registered now that is still registered when its turn comes.
    template <class Tell>
    static void notify(Tell tell);
};

}  // namespace hostdb
