// OpeningGripData: what one grip of a rectangular opening stands for (the whole opening, or
// one of its four edges). The opening owns these while the host holds its grips; each grip
// it hands out points to one of them and names this class as its data's class.
// Registered plainly: it is never filed.
#pragma once

#include "dbmain.h"

namespace AecRectOpeningUnits {

class OpeningGripData : public AcDbObject {
public:
    ACRX_DECLARE_MEMBERS(OpeningGripData);

    enum class Kind : Adesk::Int32 {
        kWholeOpening = 0,
        kEdge = 1,
    };

    // The whole-opening grip.
    OpeningGripData();
    // The grip of edge 0-3 (bottom, right, top, left).
    explicit OpeningGripData(int edgeIndex);
    ~OpeningGripData() override;

    Kind GetKind() const { return m_kind; }
    // The edge of an edge grip; -1 for the whole-opening grip.
    int GetEdgeIndex() const { return m_edgeIndex; }

private:
    Kind m_kind;
    int m_edgeIndex;
};

}  // namespace AecRectOpeningUnits
