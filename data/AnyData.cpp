// The factory of typed values by stream tag.
#include "AnyData.h"

std::shared_ptr<IAnyData> CreateAnyDataForTag(Adesk::Int32 tag)
{
    switch (tag) {
    case kAnyDataInt: return std::make_shared<AnyDataInt>();
    case kAnyDataDouble: return std::make_shared<AnyDataDouble>();
    case kAnyDataString: return std::make_shared<AnyDataString>();
    case kAnyDataBool: return std::make_shared<AnyDataBool>();
    case kAnyDataPoint2D: return std::make_shared<AnyDataPoint2D>();
    case kAnyDataPoint3D: return std::make_shared<AnyDataPoint3D>();
    case kAnyDataVector2D: return std::make_shared<AnyDataVector2D>();
    case kAnyDataVector3D: return std::make_shared<AnyDataVector3D>();
    case kAnyDataSoftPointerId: return std::make_shared<AnyDataSoftPointerId>();
    case kAnyDataHardPointerId: return std::make_shared<AnyDataHardPointerId>();
    default: return nullptr;
    }
}
