// AcGeCompositeCurve3d: bounded curves in space joined end to start into one curve.
// Its parameter runs from 0 through the pieces' own intervals laid end to end (a line
// segment takes 1, an arc its sweep); at a joint the following piece answers (the
// host does not document its composite's parametrisation; this is the headless host's).
#pragma once

#include <iosfwd>
#include <memory>
#include <vector>

#include "gecurv3d.h"

class ACHOST_API AcGeCompositeCurve3d : public AcGeCurve3d {
public:
    // Ends this close (drawing units) count as joined: rounding of pieces computed apart
    // stays far below it.
    static constexpr double kJoinTolerance = 1e-8;

    // No pieces: the interval [0, 0].
    AcGeCompositeCurve3d();
    // Copies of the curves (AcGeCurve3d pointers) in order. A null or unbounded piece, or
    // one that does not start where the previous one ends, raises the host error.
    explicit AcGeCompositeCurve3d(const AcGeVoidPointerArray& curveList);
    AcGeCompositeCurve3d(const AcGeCompositeCurve3d& source);
    AcGeCompositeCurve3d& operator=(const AcGeCompositeCurve3d& source);
    ~AcGeCompositeCurve3d() override;

    // The composite's own pieces in order; they stay owned by the composite.
    void getCurveList(AcGeVoidPointerArray& curveList) const;
    AcGeCompositeCurve3d& setCurveList(const AcGeVoidPointerArray& curveList);
    // The piece (index crvNum) that answers at param, and the piece's own parameter there.
    double globalToLocalParam(double param, int& crvNum) const;
    double localToGlobalParam(double param, int crvNum) const;

    // AcGeEntity3d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kCompositeCrv3d; }
    AcGeEntity3d* copy() const override;
    // The same number of pieces, each equal to the other's.
    Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Every piece transformed; when one cannot follow, the host error leaves all unchanged.
    AcGeCompositeCurve3d& transformBy(const AcGeMatrix3d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve3d
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve3d::getInterval;
    // The pieces in reverse order, each reversed.
    AcGeCompositeCurve3d& reverseParam() override;
    AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double length(double fromParam, double toParam, double tol = AcGeContext::gTol.equalPoint()) const override;
    double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                         double tol = AcGeContext::gTol.equalPoint()) const override;
    // The plane of the pieces: the first arc's own plane when there is an arc, otherwise
    // the plane of the piece ends oriented so that a closed chain runs counter-clockwise;
    // false when some piece leaves it.
    Adesk::Boolean isPlanar(AcGePlane& plane, const AcGeTol& tol = AcGeContext::gTol) const override;
    Adesk::Boolean area(double startParam, double endParam, double& value,
                        const AcGeTol& tol = AcGeContext::gTol) const override;
    // Composites of the pieces before and after param (each starting at parameter 0).
    void getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const override;
    Adesk::Boolean explode(AcGeVoidPointerArray& explodedCurves, AcGeIntArray& newExplodedCurve,
                           const AcGeInterval* intrvl = nullptr) const override;

protected:
    void evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const override;
    AcGeBoundBlock3d boxOver(double fromParam, double toParam) const override;

private:
    // Takes ownership of the pieces after checking them; raises the host error (owning
    // nothing new) when they do not join.
    void adopt(std::vector<std::unique_ptr<AcGeCurve3d>> pieces, const ACHAR* call);
    // The pieces' parts over [from, to], as (piece index, local from, local to).
    struct Span {
        int index;
        double from;
        double to;
    };
    std::vector<Span> spansOver(double fromParam, double toParam) const;

    std::vector<std::unique_ptr<AcGeCurve3d>> mCurves;
    std::vector<double> mStarts;  // the composite parameter where each piece starts
    double mEnd = 0.0;
};

// "AcGeCompositeCurve3d(piece, piece, ...)", each piece in its own form.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeCompositeCurve3d& curve);
