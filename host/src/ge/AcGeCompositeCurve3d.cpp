// AcGeCompositeCurve3d: a chain of bounded curves in space answering as one curve;
// every question is passed to the pieces over the part of the parameter range they hold.
#include "gecomp3d.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>

#include "GeMath.h"
#include "gearc3d.h"
#include "geplane.h"
#include "headless/HostError.h"

namespace {

AcGeTol tolerance(double both)
{
    AcGeTol tol;
    tol.setEqualPoint(both);
    tol.setEqualVector(both);
    return tol;
}

std::unique_ptr<AcGeCurve3d> copyOf(const AcGeCurve3d& curve)
{
    return std::unique_ptr<AcGeCurve3d>(static_cast<AcGeCurve3d*>(curve.copy()));
}

std::vector<std::unique_ptr<AcGeCurve3d>> copiesOf(const AcGeVoidPointerArray& curveList, const ACHAR* call)
{
    std::vector<std::unique_ptr<AcGeCurve3d>> pieces;
    for (int i = 0; i < curveList.length(); ++i) {
        const auto* curve = static_cast<const AcGeCurve3d*>(curveList[i]);
        if (curve == nullptr)
            headless::raiseHostError(L"%s: piece %d is null", call, i);
        pieces.push_back(copyOf(*curve));
    }
    return pieces;
}

}  // namespace

AcGeCompositeCurve3d::AcGeCompositeCurve3d() = default;

AcGeCompositeCurve3d::AcGeCompositeCurve3d(const AcGeVoidPointerArray& curveList)
{
    adopt(copiesOf(curveList, L"AcGeCompositeCurve3d"), L"AcGeCompositeCurve3d");
}

AcGeCompositeCurve3d::AcGeCompositeCurve3d(const AcGeCompositeCurve3d& source)
    : AcGeCurve3d(source), mStarts(source.mStarts), mEnd(source.mEnd)
{
    for (const auto& piece : source.mCurves)
        mCurves.push_back(copyOf(*piece));
}

AcGeCompositeCurve3d& AcGeCompositeCurve3d::operator=(const AcGeCompositeCurve3d& source)
{
    if (this != &source) {
        AcGeCompositeCurve3d copied(source);
        mCurves.swap(copied.mCurves);
        mStarts.swap(copied.mStarts);
        mEnd = copied.mEnd;
    }
    return *this;
}

AcGeCompositeCurve3d::~AcGeCompositeCurve3d() = default;

void AcGeCompositeCurve3d::getCurveList(AcGeVoidPointerArray& curveList) const
{
    curveList.removeAll();
    for (const auto& piece : mCurves)
        curveList.append(piece.get());
}

AcGeCompositeCurve3d& AcGeCompositeCurve3d::setCurveList(const AcGeVoidPointerArray& curveList)
{
    adopt(copiesOf(curveList, L"AcGeCompositeCurve3d::setCurveList"), L"AcGeCompositeCurve3d::setCurveList");
    return *this;
}

double AcGeCompositeCurve3d::globalToLocalParam(double param, int& crvNum) const
{
    if (mCurves.empty()) {
        crvNum = -1;
        return param;
    }
    const auto after = std::upper_bound(mStarts.begin(), mStarts.end(), param);
    int index = after == mStarts.begin() ? 0 : static_cast<int>(after - mStarts.begin()) - 1;
    // The end of the whole curve belongs to the last piece.
    index = std::min(index, static_cast<int>(mCurves.size()) - 1);
    AcGeInterval intrvl;
    mCurves[index]->getInterval(intrvl);
    crvNum = index;
    return intrvl.lowerBound() + (param - mStarts[index]);
}

double AcGeCompositeCurve3d::localToGlobalParam(double param, int crvNum) const
{
    if (crvNum < 0 || crvNum >= static_cast<int>(mCurves.size()))
        headless::raiseHostError(L"AcGeCompositeCurve3d::localToGlobalParam: there is no piece %d", crvNum);
    AcGeInterval intrvl;
    mCurves[crvNum]->getInterval(intrvl);
    return mStarts[crvNum] + (param - intrvl.lowerBound());
}

Adesk::Boolean AcGeCompositeCurve3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kCompositeCrv3d || AcGeCurve3d::isKindOf(entType);
}

AcGeEntity3d* AcGeCompositeCurve3d::copy() const
{
    return new AcGeCompositeCurve3d(*this);
}

Adesk::Boolean AcGeCompositeCurve3d::isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kCompositeCrv3d)
        return false;
    const auto& other = static_cast<const AcGeCompositeCurve3d&>(entity);
    if (other.mCurves.size() != mCurves.size())
        return false;
    for (size_t i = 0; i < mCurves.size(); ++i) {
        if (!mCurves[i]->isEqualTo(*other.mCurves[i], tol))
            return false;
    }
    return true;
}

AcGeCompositeCurve3d& AcGeCompositeCurve3d::transformBy(const AcGeMatrix3d& xfm)
{
    std::vector<std::unique_ptr<AcGeCurve3d>> moved;
    for (const auto& piece : mCurves) {
        moved.push_back(copyOf(*piece));
        moved.back()->transformBy(xfm);
    }
    mCurves.swap(moved);
    return *this;
}

void AcGeCompositeCurve3d::print(std::ostream& os) const
{
    os << "AcGeCompositeCurve3d(";
    for (size_t i = 0; i < mCurves.size(); ++i)
        os << (i == 0 ? "" : ", ") << *mCurves[i];
    os << ')';
}

void AcGeCompositeCurve3d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set(0.0, mEnd);
}

AcGeCompositeCurve3d& AcGeCompositeCurve3d::reverseParam()
{
    std::vector<std::unique_ptr<AcGeCurve3d>> reversed;
    for (auto it = mCurves.rbegin(); it != mCurves.rend(); ++it) {
        reversed.push_back(std::move(*it));
        reversed.back()->reverseParam();
    }
    adopt(std::move(reversed), L"AcGeCompositeCurve3d::reverseParam");
    return *this;
}

AcGePoint3d AcGeCompositeCurve3d::closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return evalPoint(paramOf(pnt, tol));
}

double AcGeCompositeCurve3d::paramOf(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    double best = std::numeric_limits<double>::infinity();
    double param = 0.0;
    for (size_t i = 0; i < mCurves.size(); ++i) {
        const double local = mCurves[i]->paramOf(pnt, tol);
        const double dist = pnt.distanceTo(mCurves[i]->evalPoint(local));
        if (dist < best) {
            best = dist;
            param = localToGlobalParam(local, static_cast<int>(i));
        }
    }
    return param;
}

double AcGeCompositeCurve3d::length(double fromParam, double toParam, double tol) const
{
    double total = 0.0;
    for (const Span& span : spansOver(std::min(fromParam, toParam), std::max(fromParam, toParam)))
        total += mCurves[span.index]->length(span.from, span.to, tol);
    return total;
}

double AcGeCompositeCurve3d::paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir,
                                           double tol) const
{
    if (mCurves.empty())
        return datumParam;
    bool ahead = posParamDir;
    if (length < 0.0) {
        length = -length;
        ahead = !ahead;
    }
    int index = 0;
    double local = globalToLocalParam(std::clamp(datumParam, 0.0, mEnd), index);
    double remaining = length;
    while (true) {
        AcGeInterval intrvl;
        mCurves[index]->getInterval(intrvl);
        const double bound = ahead ? intrvl.upperBound() : intrvl.lowerBound();
        const double available = mCurves[index]->length(local, bound, tol);
        if (remaining <= available)
            return localToGlobalParam(mCurves[index]->paramAtLength(local, remaining, ahead, tol), index);
        remaining -= available;
        const int next = index + (ahead ? 1 : -1);
        if (next < 0 || next >= static_cast<int>(mCurves.size()))
            return ahead ? mEnd : 0.0;
        index = next;
        mCurves[index]->getInterval(intrvl);
        local = ahead ? intrvl.lowerBound() : intrvl.upperBound();
    }
}

Adesk::Boolean AcGeCompositeCurve3d::isPlanar(AcGePlane& plane, const AcGeTol& tol) const
{
    std::vector<AcGePoint3d> points;
    AcGeVector3d arcNormal;
    for (const auto& piece : mCurves) {
        AcGeInterval intrvl;
        piece->getInterval(intrvl);
        points.push_back(piece->evalPoint(intrvl.lowerBound()));
        points.push_back(piece->evalPoint((intrvl.lowerBound() + intrvl.upperBound()) / 2.0));
        if (arcNormal.isZeroLength() && piece->type() == AcGe::kCircArc3d)
            arcNormal = static_cast<const AcGeCircArc3d&>(*piece).normal();
    }
    if (points.empty())
        return false;
    points.push_back(evalPoint(mEnd));
    // The widest triangle of the sample points fixes the plane.
    const AcGePoint3d& origin = points.front();
    size_t far = 0;
    for (size_t i = 1; i < points.size(); ++i) {
        if (points[i].distanceTo(origin) > points[far].distanceTo(origin))
            far = i;
    }
    const AcGeVector3d reach = points[far] - origin;
    AcGeVector3d normal;
    for (const AcGePoint3d& p : points) {
        const AcGeVector3d candidate = reach.crossProduct(p - origin);
        if (candidate.length() > normal.length())
            normal = candidate;
    }
    if (normal.length() <= hostge::kParallelSine * reach.lengthSqrd()) {
        if (!arcNormal.isZeroLength())
            normal = arcNormal;
        else
            return mCurves.front()->isPlanar(plane, tol);
    }
    normal = normal / normal.length();
    AcGeVector3d newell;
    for (size_t i = 0; i + 1 < points.size(); ++i)
        newell += (points[i] - origin).crossProduct(points[i + 1] - origin);
    const AcGeVector3d& sense = arcNormal.isZeroLength() ? newell : arcNormal;
    if (sense.dotProduct(normal) < 0.0)
        normal = -normal;
    const AcGePlane candidate(origin, normal);
    const double within = std::max(tol.equalPoint(), kJoinTolerance);
    for (const AcGePoint3d& p : points) {
        if (candidate.distanceTo(p) > within)
            return false;
    }
    for (const auto& piece : mCurves) {
        if (piece->type() == AcGe::kCircArc3d &&
            !static_cast<const AcGeCircArc3d&>(*piece).normal().isParallelTo(normal, tolerance(kJoinTolerance)))
            return false;
    }
    plane = candidate;
    return true;
}

Adesk::Boolean AcGeCompositeCurve3d::area(double startParam, double endParam, double& value, const AcGeTol& tol) const
{
    AcGePlane plane;
    if (!isPlanar(plane, tol))
        return false;
    const AcGeVector3d normal = plane.normal();
    const double from = std::min(startParam, endParam);
    const double to = std::max(startParam, endParam);
    const AcGePoint3d origin = evalPoint(from);
    double total = 0.0;
    for (const Span& span : spansOver(from, to)) {
        const AcGeCurve3d& piece = *mCurves[span.index];
        double bulgeArea = 0.0;
        if (!piece.area(span.from, span.to, bulgeArea, tol))
            return false;
        // A piece's own area is seen from its own plane's normal.
        AcGePlane own;
        if (piece.isPlanar(own, tol) && own.normal().dotProduct(normal) < 0.0)
            bulgeArea = -bulgeArea;
        // The chord of each part seen from the start closes the polygon of the part ends.
        const AcGeVector3d chordTurn = (piece.evalPoint(span.from) - origin).crossProduct(piece.evalPoint(span.to) - origin);
        total += 0.5 * chordTurn.dotProduct(normal) + bulgeArea;
    }
    value = startParam <= endParam ? total : -total;
    return true;
}

void AcGeCompositeCurve3d::getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const
{
    piece1 = nullptr;
    piece2 = nullptr;
    if (mCurves.empty())
        return;
    int index = 0;
    const double local = globalToLocalParam(param, index);
    AcGeCurve3d* before = nullptr;
    AcGeCurve3d* after = nullptr;
    mCurves[index]->getSplitCurves(local, before, after);
    std::unique_ptr<AcGeCurve3d> ownedBefore(before);
    std::unique_ptr<AcGeCurve3d> ownedAfter(after);
    std::vector<std::unique_ptr<AcGeCurve3d>> first;
    std::vector<std::unique_ptr<AcGeCurve3d>> second;
    for (int i = 0; i < index; ++i)
        first.push_back(copyOf(*mCurves[i]));
    if (ownedBefore)
        first.push_back(std::move(ownedBefore));
    if (ownedAfter)
        second.push_back(std::move(ownedAfter));
    for (size_t i = index + 1; i < mCurves.size(); ++i)
        second.push_back(copyOf(*mCurves[i]));
    if (param > 0.0 && !first.empty()) {
        auto* composite = new AcGeCompositeCurve3d();
        composite->adopt(std::move(first), L"AcGeCompositeCurve3d::getSplitCurves");
        piece1 = composite;
    }
    if (param < mEnd && !second.empty()) {
        auto* composite = new AcGeCompositeCurve3d();
        composite->adopt(std::move(second), L"AcGeCompositeCurve3d::getSplitCurves");
        piece2 = composite;
    }
}

Adesk::Boolean AcGeCompositeCurve3d::explode(AcGeVoidPointerArray& explodedCurves, AcGeIntArray& newExplodedCurve,
                                             const AcGeInterval* intrvl) const
{
    const double from = intrvl != nullptr && intrvl->isBoundedBelow() ? intrvl->lowerBound() : 0.0;
    const double to = intrvl != nullptr && intrvl->isBoundedAbove() ? intrvl->upperBound() : mEnd;
    for (const Span& span : spansOver(from, to)) {
        std::unique_ptr<AcGeCurve3d> part = copyOf(*mCurves[span.index]);
        AcGeInterval whole;
        part->getInterval(whole);
        if (span.to < whole.upperBound()) {
            AcGeCurve3d* head = nullptr;
            AcGeCurve3d* tail = nullptr;
            part->getSplitCurves(span.to, head, tail);
            delete tail;
            part.reset(head);
        }
        if (part && span.from > whole.lowerBound()) {
            AcGeCurve3d* head = nullptr;
            AcGeCurve3d* tail = nullptr;
            part->getSplitCurves(span.from, head, tail);
            delete head;
            part.reset(tail);
        }
        if (!part)
            continue;
        explodedCurves.append(part.release());
        newExplodedCurve.append(1);
    }
    return true;
}

void AcGeCompositeCurve3d::evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const
{
    if (mCurves.empty()) {
        point = AcGePoint3d::kOrigin;
        for (int i = 0; i < numDeriv; ++i)
            derivs[i] = AcGeVector3d();
        return;
    }
    int index = 0;
    const double local = globalToLocalParam(param, index);
    AcGeVector3dArray pieceDerivs;
    point = mCurves[index]->evalPoint(local, numDeriv, pieceDerivs);
    // The composite's parameter moves with each piece's own: derivatives carry over.
    for (int i = 0; i < numDeriv; ++i)
        derivs[i] = pieceDerivs[i];
}

AcGeBoundBlock3d AcGeCompositeCurve3d::boxOver(double fromParam, double toParam) const
{
    const std::vector<Span> spans = spansOver(std::min(fromParam, toParam), std::max(fromParam, toParam));
    if (spans.empty())
        return AcGeBoundBlock3d(evalPoint(0.0), evalPoint(0.0));
    AcGeBoundBlock3d box = mCurves[spans.front().index]->boundBlock(AcGeInterval(spans.front().from, spans.front().to));
    for (const Span& span : spans) {
        AcGePoint3d lo;
        AcGePoint3d hi;
        mCurves[span.index]->boundBlock(AcGeInterval(span.from, span.to)).getMinMaxPoints(lo, hi);
        box.extend(lo);
        box.extend(hi);
    }
    return box;
}

void AcGeCompositeCurve3d::adopt(std::vector<std::unique_ptr<AcGeCurve3d>> pieces, const ACHAR* call)
{
    std::vector<double> starts;
    double end = 0.0;
    for (size_t i = 0; i < pieces.size(); ++i) {
        AcGeInterval intrvl;
        pieces[i]->getInterval(intrvl);
        if (!intrvl.isBounded())
            headless::raiseHostError(L"%s: piece %d is unbounded", call, static_cast<int>(i));
        if (i > 0) {
            AcGePoint3d previousEnd;
            AcGePoint3d start;
            pieces[i - 1]->hasEndPoint(previousEnd);
            pieces[i]->hasStartPoint(start);
            if (previousEnd.distanceTo(start) > kJoinTolerance)
                headless::raiseHostError(L"%s: piece %d does not start where piece %d ends", call,
                                         static_cast<int>(i), static_cast<int>(i - 1));
        }
        starts.push_back(end);
        end += intrvl.length();
    }
    mCurves = std::move(pieces);
    mStarts = std::move(starts);
    mEnd = end;
}

std::vector<AcGeCompositeCurve3d::Span> AcGeCompositeCurve3d::spansOver(double fromParam, double toParam) const
{
    std::vector<Span> spans;
    for (size_t i = 0; i < mCurves.size(); ++i) {
        AcGeInterval intrvl;
        mCurves[i]->getInterval(intrvl);
        const double start = mStarts[i];
        const double end = start + intrvl.length();
        const double from = std::max(fromParam, start);
        const double to = std::min(toParam, end);
        if (from < to)
            spans.push_back({static_cast<int>(i), intrvl.lowerBound() + (from - start), intrvl.lowerBound() + (to - start)});
    }
    return spans;
}

std::ostream& operator<<(std::ostream& os, const AcGeCompositeCurve3d& curve)
{
    curve.print(os);
    return os;
}
