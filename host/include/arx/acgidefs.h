// The graphics interface's enumerations. The host does not document their numbers; the
// values here are the headless host's choice and nothing files them.
#pragma once

// Why the graphics are being generated.
enum AcGiRegenType {
    eAcGiRegenTypeInvalid = 0,
    kAcGiStandardDisplay = 2,
    kAcGiHideOrShadeCommand = 3,
    kAcGiShadedDisplay = kAcGiHideOrShadeCommand,
    kAcGiRenderCommand = 4,
    kAcGiForExplode = 5,
    kAcGiSaveWorldDrawForProxy = 6,
};

// Whether closed primitives (polygons, shells, circles) are filled.
enum AcGiFillType {
    kAcGiFillAlways = 1,
    kAcGiFillNever = 2,
};

// How an arc primitive is closed: not at all, through its centre, or by its chord.
enum AcGiArcType {
    kAcGiArcSimple = 0,
    kAcGiArcSector = 1,
    kAcGiArcChord = 2,
};

// What a drawable asks the deviation (tessellation tolerance) for.
enum AcGiDeviationType {
    kAcGiMaxDevForCircle = 0,
    kAcGiMaxDevForCurve = 1,
    kAcGiMaxDevForBoundary = 2,
    kAcGiMaxDevForIsoline = 3,
    kAcGiMaxDevForFacet = 4,
};

// Vertex order of shell faces.
enum AcGiOrientationType {
    kAcGiCounterClockwise = -1,
    kAcGiNoOrientation = 0,
    kAcGiClockwise = 1,
};

// Visibility of shell and mesh edges.
enum AcGiVisibility {
    kAcGiInvisible = 0,
    kAcGiVisible = 1,
    kAcGiSilhouette = 2,
};
