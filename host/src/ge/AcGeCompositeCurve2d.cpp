// AcGeCompositeCurve2d: a chain of bounded curves of the plane answering as one curve;
// every question is passed to the pieces over the part of the parameter range they hold.
#include "gecomp2d.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>

#include "headless/HostError.h"

namespace {

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

std::unique_ptr<AcGeCurve2d> copyOf(const AcGeCurve2d& curve)
{
    return std::unique_ptr<AcGeCurve2d>(static_cast<AcGeCurve2d*>(curve.copy()));
}

std::vector<std::unique_ptr<AcGeCurve2d>> copiesOf(const AcGeVoidPointerArray& curveList, const ACHAR* call)
{
    std::vector<std::unique_ptr<AcGeCurve2d>> pieces;
    for (int i = 0; i < curveList.length(); ++i) {
        const auto* curve = static_cast<const AcGeCurve2d*>(curveList[i]);
        if (curve == nullptr)
            headless::raiseHostError(L"%s: piece %d is null", call, i);
        pieces.push_back(copyOf(*curve));
    }
    return pieces;
}

}  // namespace

AcGeCompositeCurve2d::AcGeCompositeCurve2d() = default;

AcGeCompositeCurve2d::AcGeCompositeCurve2d(const AcGeVoidPointerArray& curveList)
{
    adopt(copiesOf(curveList, L"AcGeCompositeCurve2d"), L"AcGeCompositeCurve2d");
}

AcGeCompositeCurve2d::AcGeCompositeCurve2d(const AcGeCompositeCurve2d& source)
    : AcGeCurve2d(source), mStarts(source.mStarts), mEnd(source.mEnd)
{
    for (const auto& piece : source.mCurves)
        mCurves.push_back(copyOf(*piece));
}

AcGeCompositeCurve2d& AcGeCompositeCurve2d::operator=(const AcGeCompositeCurve2d& source)
{
    if (this != &source) {
        AcGeCompositeCurve2d copied(source);
        mCurves.swap(copied.mCurves);
        mStarts.swap(copied.mStarts);
        mEnd = copied.mEnd;
    }
    return *this;
}

AcGeCompositeCurve2d::~AcGeCompositeCurve2d() = default;

void AcGeCompositeCurve2d::getCurveList(AcGeVoidPointerArray& curveList) const
{
    curveList.removeAll();
    for (const auto& piece : mCurves)
        curveList.append(piece.get());
}

AcGeCompositeCurve2d& AcGeCompositeCurve2d::setCurveList(const AcGeVoidPointerArray& curveList)
{
    adopt(copiesOf(curveList, L"AcGeCompositeCurve2d::setCurveList"), L"AcGeCompositeCurve2d::setCurveList");
    return *this;
}

double AcGeCompositeCurve2d::globalToLocalParam(double param, int& crvNum) const
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

double AcGeCompositeCurve2d::localToGlobalParam(double param, int crvNum) const
{
    if (crvNum < 0 || crvNum >= static_cast<int>(mCurves.size()))
        headless::raiseHostError(L"AcGeCompositeCurve2d::localToGlobalParam: there is no piece %d", crvNum);
    AcGeInterval intrvl;
    mCurves[crvNum]->getInterval(intrvl);
    return mStarts[crvNum] + (param - intrvl.lowerBound());
}

Adesk::Boolean AcGeCompositeCurve2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kCompositeCrv2d || AcGeCurve2d::isKindOf(entType);
}

AcGeEntity2d* AcGeCompositeCurve2d::copy() const
{
    return new AcGeCompositeCurve2d(*this);
}

Adesk::Boolean AcGeCompositeCurve2d::isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kCompositeCrv2d)
        return false;
    const auto& other = static_cast<const AcGeCompositeCurve2d&>(entity);
    if (other.mCurves.size() != mCurves.size())
        return false;
    for (size_t i = 0; i < mCurves.size(); ++i) {
        if (!mCurves[i]->isEqualTo(*other.mCurves[i], tol))
            return false;
    }
    return true;
}

AcGeCompositeCurve2d& AcGeCompositeCurve2d::transformBy(const AcGeMatrix2d& xfm)
{
    std::vector<std::unique_ptr<AcGeCurve2d>> moved;
    for (const auto& piece : mCurves) {
        moved.push_back(copyOf(*piece));
        moved.back()->transformBy(xfm);
    }
    mCurves.swap(moved);
    return *this;
}

void AcGeCompositeCurve2d::print(std::ostream& os) const
{
    os << "AcGeCompositeCurve2d(";
    for (size_t i = 0; i < mCurves.size(); ++i)
        os << (i == 0 ? "" : ", ") << *mCurves[i];
    os << ')';
}

void AcGeCompositeCurve2d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set(0.0, mEnd);
}

AcGeCompositeCurve2d& AcGeCompositeCurve2d::reverseParam()
{
    std::vector<std::unique_ptr<AcGeCurve2d>> reversed;
    for (auto it = mCurves.rbegin(); it != mCurves.rend(); ++it) {
        reversed.push_back(std::move(*it));
        reversed.back()->reverseParam();
    }
    adopt(std::move(reversed), L"AcGeCompositeCurve2d::reverseParam");
    return *this;
}

AcGePoint2d AcGeCompositeCurve2d::closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return evalPoint(paramOf(pnt, tol));
}

double AcGeCompositeCurve2d::paramOf(const AcGePoint2d& pnt, const AcGeTol& tol) const
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

double AcGeCompositeCurve2d::length(double fromParam, double toParam, double tol) const
{
    double total = 0.0;
    for (const Span& span : spansOver(std::min(fromParam, toParam), std::max(fromParam, toParam)))
        total += mCurves[span.index]->length(span.from, span.to, tol);
    return total;
}

double AcGeCompositeCurve2d::paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir,
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

Adesk::Boolean AcGeCompositeCurve2d::area(double startParam, double endParam, double& value, const AcGeTol& tol) const
{
    const double from = std::min(startParam, endParam);
    const double to = std::max(startParam, endParam);
    const AcGePoint2d origin = evalPoint(from);
    double total = 0.0;
    for (const Span& span : spansOver(from, to)) {
        const AcGeCurve2d& piece = *mCurves[span.index];
        double bulgeArea = 0.0;
        if (!piece.area(span.from, span.to, bulgeArea, tol))
            return false;
        // The chord of each part seen from the start closes the polygon of the part ends.
        total += 0.5 * cross(piece.evalPoint(span.from) - origin, piece.evalPoint(span.to) - origin) + bulgeArea;
    }
    value = startParam <= endParam ? total : -total;
    return true;
}

void AcGeCompositeCurve2d::getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const
{
    piece1 = nullptr;
    piece2 = nullptr;
    if (mCurves.empty())
        return;
    int index = 0;
    const double local = globalToLocalParam(param, index);
    AcGeCurve2d* before = nullptr;
    AcGeCurve2d* after = nullptr;
    mCurves[index]->getSplitCurves(local, before, after);
    std::unique_ptr<AcGeCurve2d> ownedBefore(before);
    std::unique_ptr<AcGeCurve2d> ownedAfter(after);
    std::vector<std::unique_ptr<AcGeCurve2d>> first;
    std::vector<std::unique_ptr<AcGeCurve2d>> second;
    for (int i = 0; i < index; ++i)
        first.push_back(copyOf(*mCurves[i]));
    if (ownedBefore)
        first.push_back(std::move(ownedBefore));
    if (ownedAfter)
        second.push_back(std::move(ownedAfter));
    for (size_t i = index + 1; i < mCurves.size(); ++i)
        second.push_back(copyOf(*mCurves[i]));
    if (param > 0.0 && !first.empty()) {
        auto* composite = new AcGeCompositeCurve2d();
        composite->adopt(std::move(first), L"AcGeCompositeCurve2d::getSplitCurves");
        piece1 = composite;
    }
    if (param < mEnd && !second.empty()) {
        auto* composite = new AcGeCompositeCurve2d();
        composite->adopt(std::move(second), L"AcGeCompositeCurve2d::getSplitCurves");
        piece2 = composite;
    }
}

Adesk::Boolean AcGeCompositeCurve2d::explode(AcGeVoidPointerArray& explodedCurves, AcGeIntArray& newExplodedCurve,
                                             const AcGeInterval* intrvl) const
{
    const double from = intrvl != nullptr && intrvl->isBoundedBelow() ? intrvl->lowerBound() : 0.0;
    const double to = intrvl != nullptr && intrvl->isBoundedAbove() ? intrvl->upperBound() : mEnd;
    for (const Span& span : spansOver(from, to)) {
        std::unique_ptr<AcGeCurve2d> part = copyOf(*mCurves[span.index]);
        AcGeInterval whole;
        part->getInterval(whole);
        if (span.to < whole.upperBound()) {
            AcGeCurve2d* head = nullptr;
            AcGeCurve2d* tail = nullptr;
            part->getSplitCurves(span.to, head, tail);
            delete tail;
            part.reset(head);
        }
        if (part && span.from > whole.lowerBound()) {
            AcGeCurve2d* head = nullptr;
            AcGeCurve2d* tail = nullptr;
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

void AcGeCompositeCurve2d::evaluate(double param, int numDeriv, AcGePoint2d& point, AcGeVector2d* derivs) const
{
    if (mCurves.empty()) {
        point = AcGePoint2d::kOrigin;
        for (int i = 0; i < numDeriv; ++i)
            derivs[i] = AcGeVector2d();
        return;
    }
    int index = 0;
    const double local = globalToLocalParam(param, index);
    AcGeVector2dArray pieceDerivs;
    point = mCurves[index]->evalPoint(local, numDeriv, pieceDerivs);
    // The composite's parameter moves with each piece's own: derivatives carry over.
    for (int i = 0; i < numDeriv; ++i)
        derivs[i] = pieceDerivs[i];
}

AcGeBoundBlock2d AcGeCompositeCurve2d::boxOver(double fromParam, double toParam) const
{
    const std::vector<Span> spans = spansOver(std::min(fromParam, toParam), std::max(fromParam, toParam));
    if (spans.empty())
        return AcGeBoundBlock2d(evalPoint(0.0), evalPoint(0.0));
    AcGeBoundBlock2d box = mCurves[spans.front().index]->boundBlock(AcGeInterval(spans.front().from, spans.front().to));
    for (const Span& span : spans) {
        AcGePoint2d lo;
        AcGePoint2d hi;
        mCurves[span.index]->boundBlock(AcGeInterval(span.from, span.to)).getMinMaxPoints(lo, hi);
        box.extend(lo);
        box.extend(hi);
    }
    return box;
}

void AcGeCompositeCurve2d::adopt(std::vector<std::unique_ptr<AcGeCurve2d>> pieces, const ACHAR* call)
{
    std::vector<double> starts;
    double end = 0.0;
    for (size_t i = 0; i < pieces.size(); ++i) {
        AcGeInterval intrvl;
        pieces[i]->getInterval(intrvl);
        if (!intrvl.isBounded())
            headless::raiseHostError(L"%s: piece %d is unbounded", call, static_cast<int>(i));
        if (i > 0) {
            AcGePoint2d previousEnd;
            AcGePoint2d start;
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

std::vector<AcGeCompositeCurve2d::Span> AcGeCompositeCurve2d::spansOver(double fromParam, double toParam) const
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

std::ostream& operator<<(std::ostream& os, const AcGeCompositeCurve2d& curve)
{
    curve.print(os);
    return os;
}
