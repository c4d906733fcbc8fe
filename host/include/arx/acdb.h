// The database layer's enumerations, with the host's documented numbers.
#pragma once

#include "adesk.h"

namespace AcDb {

enum OpenMode { kNotOpen = -1, kForRead = 0, kForWrite = 1, kForNotify = 2 };

enum FilerType {
    kFileFiler = 0,
    kCopyFiler = 1,
    kUndoFiler = 2,
    kBagFiler = 3,
    kIdXlateFiler = 4,
    kPageFiler = 5,
    kDeepCloneFiler = 6,
    kIdFiler = 7,
    kPurgeFiler = 8,
    kWblockCloneFiler = 9,
};

enum FilerSeekType { kSeekFromStart = 0, kSeekFromCurrent = 1, kSeekFromEnd = 2 };

enum DeepCloneType {
    kDcCopy = 0,
    kDcExplode = 1,
    kDcBlock = 2,
    kDcXrefBind = 3,
    kDcSymTableMerge = 4,
    kDcInsert = 6,
    kDcWblock = 7,
    kDcObjects = 8,
    kDcXrefInsert = 9,
    kDcInsertCopy = 10,
    kDcWblkObjects = 11,
};

enum DuplicateRecordCloning {
    kDrcNotApplicable = 0,
    kDrcIgnore = 1,
    kDrcReplace = 2,
    kDrcXrefMangleName = 3,
    kDrcMangleName = 4,
    kDrcUnmangleName = 5,
};

enum OsnapMode {
    kOsModeEnd = 1,
    kOsModeMid = 2,
    kOsModeCen = 3,
    kOsModeNode = 4,
    kOsModeQuad = 5,
    kOsModeIntersec = 6,
    kOsModeIns = 7,
    kOsModePerp = 8,
    kOsModeTan = 9,
    kOsModeNear = 10,
    // Values above 10 differ between releases (UNCONFIRMED); these are the older ones.
    kOsModeApint = 11,
    kOsModePar = 12,
    kOsModeStart = 13,
};

enum Intersect { kOnBothOperands = 0, kExtendThis = 1, kExtendArg = 2, kExtendBoth = 3 };

enum Planarity { kNonPlanar = 0, kPlanar = 1, kLinear = 2 };

enum Visibility { kVisible = 0, kInvisible = 1 };

enum LineWeight {
    kLnWt000 = 0, kLnWt005 = 5, kLnWt009 = 9, kLnWt013 = 13, kLnWt015 = 15, kLnWt018 = 18,
    kLnWt020 = 20, kLnWt025 = 25, kLnWt030 = 30, kLnWt035 = 35, kLnWt040 = 40, kLnWt050 = 50,
    kLnWt053 = 53, kLnWt060 = 60, kLnWt070 = 70, kLnWt080 = 80, kLnWt090 = 90, kLnWt100 = 100,
    kLnWt106 = 106, kLnWt120 = 120, kLnWt140 = 140, kLnWt158 = 158, kLnWt200 = 200, kLnWt211 = 211,
    kLnWtByLayer = -1, kLnWtByBlock = -2, kLnWtByLwDefault = -3,
};

enum GripStat { kGripsDone = 0, kGripsToBeDeleted = 1, kDimDataToBeDeleted = 2 };

enum DragStat { kDragStart = 0, kDragEnd = 1, kDragAbort = 2 };

enum TextHorzMode { kTextLeft = 0, kTextCenter = 1, kTextRight = 2, kTextAlign = 3, kTextMid = 4, kTextFit = 5 };

enum TextVertMode { kTextBase = 0, kTextBottom = 1, kTextVertMid = 2, kTextTop = 3 };

enum SubentType { kNullSubentType = 0, kFaceSubentType = 1, kEdgeSubentType = 2, kVertexSubentType = 3,
                  kMlineSubentCache = 4, kClassSubentType = 5, kAxisSubentType = 6 };

enum Poly2dType { k2dSimplePoly = 0, k2dFitCurvePoly = 1, k2dQuadSplinePoly = 2, k2dCubicSplinePoly = 3 };

// Drawing format levels. The numeric value of the current level is UNCONFIRMED; 33 is the
// level the module's classes declare as current.
enum AcDbDwgVersion {
    kDHL_MC0_0 = 0,
    kDHL_1032 = 33,
    kDHL_CURRENT = kDHL_1032,
    kDHL_Unknown = 32766,
    kDHL_Max = 32767,
};

enum MaintenanceReleaseVersion {
    kMRelease0 = 0,
    kMReleaseCurrent = 327,
    kMReleaseUnknown = 126,
    kMReleaseMax = 255,
};

enum ReferenceType { kSoftPointerRef = 0, kHardPointerRef = 1, kSoftOwnershipRef = 2, kHardOwnershipRef = 3 };

}  // namespace AcDb

// Proxy flags: what may be done to an object of a class whose module is not loaded.
enum AcDbProxyFlags {
    kNoOperation = 0,
    kEraseAllowed = 0x1,
    kTransformAllowed = 0x2,
    kColorChangeAllowed = 0x4,
    kLayerChangeAllowed = 0x8,
    kLinetypeChangeAllowed = 0x10,
    kLinetypeScaleChangeAllowed = 0x20,
    kVisibilityChangeAllowed = 0x40,
    kCloningAllowed = 0x80,
    kLineWeightChangeAllowed = 0x100,
    kPlotStyleNameChangeAllowed = 0x200,
    kAllButCloningAllowed = 0x37F,
    // The documented tables disagree (0x7F or 0x3FF); UNCONFIRMED. Every operation bit:
    kAllAllowedBits = 0x3FF,
    kDisableProxyWarning = 0x400,
};
