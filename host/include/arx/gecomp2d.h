// AcGeCompositeCurve2d: bounded curves of the plane joined end to start into one curve.
// Its parameter runs from 0 through the pieces' own intervals laid end to end (a line
// segment takes 1, an arc its sweep); at a joint the following piece answers (the
// host does not document its composite's parametrisation; this is the headless host's).
#pragma once

#include <iosfwd>
#include <memory>
#include <vector>

#include "gecurv2d.h"

class ACHOST_API AcGeCompositeCurve2d : public AcGeCurve2d {
public:
    // Ends this close (drawing units) count as joined: rounding of pieces computed apart
    // stays far below it.
    static constexpr double kJoinTolerance = 1e-8;

    // No pieces: the interval [0, 0].
    AcGeCompositeCurve2d();
    // Copies of the curves (AcGeCurve2d pointers) in order. A null or unbounded piece, or
    // one that does not start where the previous one ends, raises the host error.
    explicit AcGeCompositeCurve2d(const AcGeVoidPointerArray& curveList);
    AcGeCompositeCurve2d(const AcGeCompositeCurve2d& source);
    AcGeCompositeCurve2d& operator=(const AcGeCompositeCurve2d& source);
    ~AcGeCompositeCurve2d() override;

    // The composite's own pieces in order; they stay owned by the composite.
    void getCurveList(AcGeVoidPointerArray& curveList) const;
    AcGeCompositeCurve2d& setCurveList(const AcGeVoidPointerArray& curveList);
    // The piece (index crvNum) that answers at param, and the piece's own parameter there.
    double globalToLocalParam(double param, int& crvNum) const;
    double localToGlobalParam(double param, int crvNum) const;

    // AcGeEntity2d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kCompositeCrv2d; }
    AcGeEntity2d* copy() const override;
    // The same number of pieces, each equal to the other's.
    Adesk::Boolean isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Every piece transformed; when one cannot follow, the host error leaves all unchanged.
    AcGeCompositeCurve2d& transformBy(const AcGeMatrix2d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve2d
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve2d::getInterval;
    // The pieces in reverse order, each reversed.
    AcGeCompositeCurve2d& reverseParam() override;
    AcGePoint2d closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double paramOf(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double length(double fromParam, double toParam, double tol = AcGeContext::gTol.equalPoint()) const override;
    double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                         double tol = AcGeContext::gTol.equalPoint()) const override;
    Adesk::Boolean area(double startParam, double endParam, double& value,
                        const AcGeTol& tol = AcGeContext::gTol) const override;
    // Composites of the pieces before and after param (each starting at parameter 0).
    void getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const override;
    Adesk::Boolean explode(AcGeVoidPointerArray& explodedCurves, AcGeIntArray& newExplodedCurve,
                           const AcGeInterval* intrvl = nullptr) const override;

protected:
    void evaluate(double param, int numDeriv, AcGePoint2d& point, AcGeVector2d* derivs) const override;
    AcGeBoundBlock2d boxOver(double fromParam, double toParam) const override;

private:
    // Takes ownership of the pieces after checking them; raises the host error (owning
    // nothing new) when they do not join.
    void adopt(std::vector<std::unique_ptr<AcGeCurve2d>> pieces, const ACHAR* call);
    // The pieces' parts over [from, to], as (piece index, local from, local to).
    struct Span {
        int index;
        double from;
        double to;
    };
    std::vector<Span> spansOver(double fromParam, double toParam) const;

    std::vector<std::unique_ptr<AcGeCurve2d>> mCurves;
    std::vector<double> mStarts;  // the composite parameter where each piece starts
    double mEnd = 0.0;
};

// "AcGeCompositeCurve2d(piece, piece, ...)", each piece in its own form.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeCompositeCurve2d& curve);
