// OpeningGripData: the grip record of the rectangular opening.
#include "OpeningGripData.h"

#include "rxboiler.h"

namespace AecRectOpeningUnits {

// The runtime class is named without the namespace.
ACRX_NO_CONS_DEFINE_MEMBERS(OpeningGripData, AcDbObject)

OpeningGripData::OpeningGripData() : m_kind(Kind::kWholeOpening), m_edgeIndex(-1) {}

OpeningGripData::OpeningGripData(int edgeIndex) : m_kind(Kind::kEdge), m_edgeIndex(edgeIndex) {}

OpeningGripData::~OpeningGripData() = default;

}  // namespace AecRectOpeningUnits
