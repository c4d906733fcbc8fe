// AcGeInterval: parameter ranges of curves.
#include "geintrvl.h"

#include <cmath>
#include <ostream>

#include "GeFormat.h"

AcGeInterval::AcGeInterval(double tol) : mTol(tol) {}

AcGeInterval::AcGeInterval(double lower, double upper, double tol) : mTol(tol)
{
    set(lower, upper);
}

AcGeInterval::AcGeInterval(Adesk::Boolean boundedBelow, double bound, double tol) : mTol(tol)
{
    set(boundedBelow, bound);
}

void AcGeInterval::getBounds(double& lower, double& upper) const
{
    lower = mLower;
    upper = mUpper;
}

double AcGeInterval::length() const
{
    return isBounded() ? mUpper - mLower : -1.0;
}

Adesk::Boolean AcGeInterval::isSingleton() const
{
    return isBounded() && mUpper - mLower <= mTol;
}

Adesk::Boolean AcGeInterval::contains(double val) const
{
    if (mBoundedBelow && val < mLower - mTol)
        return false;
    if (mBoundedAbove && val > mUpper + mTol)
        return false;
    return true;
}

AcGeInterval& AcGeInterval::set(double lower, double upper)
{
    mLower = std::fmin(lower, upper);
    mUpper = std::fmax(lower, upper);
    mBoundedBelow = true;
    mBoundedAbove = true;
    return *this;
}

AcGeInterval& AcGeInterval::set(Adesk::Boolean boundedBelow, double bound)
{
    mBoundedBelow = boundedBelow;
    mBoundedAbove = !boundedBelow;
    mLower = bound;
    mUpper = bound;
    return *this;
}

AcGeInterval& AcGeInterval::set()
{
    mBoundedBelow = false;
    mBoundedAbove = false;
    mLower = 0.0;
    mUpper = 0.0;
    return *this;
}

AcGeInterval& AcGeInterval::setLower(double lower)
{
    mLower = lower;
    mBoundedBelow = true;
    if (mBoundedAbove && mUpper < mLower)
        mUpper = mLower;
    return *this;
}

AcGeInterval& AcGeInterval::setUpper(double upper)
{
    mUpper = upper;
    mBoundedAbove = true;
    if (mBoundedBelow && mLower > mUpper)
        mLower = mUpper;
    return *this;
}

AcGeInterval& AcGeInterval::setTolerance(double tol)
{
    mTol = tol;
    return *this;
}

bool AcGeInterval::operator==(const AcGeInterval& intrvl) const
{
    if (mBoundedBelow != intrvl.mBoundedBelow || mBoundedAbove != intrvl.mBoundedAbove)
        return false;
    if (mBoundedBelow && std::fabs(mLower - intrvl.mLower) > mTol)
        return false;
    if (mBoundedAbove && std::fabs(mUpper - intrvl.mUpper) > mTol)
        return false;
    return true;
}

std::ostream& operator<<(std::ostream& os, const AcGeInterval& intrvl)
{
    os << '[';
    if (intrvl.isBoundedBelow())
        hostge::writeNumber(os, intrvl.lowerBound());
    else
        os << "-inf";
    os << ", ";
    if (intrvl.isBoundedAbove())
        hostge::writeNumber(os, intrvl.upperBound());
    else
        os << "inf";
    return os << ']';
}
