// The host's list format: labelled lines printed on the command line.
#include "EntityListing.h"

#include <cmath>

#include "acutads.h"

namespace hostents {
namespace {

constexpr double kRadiansToDegrees = 57.29577951308232087680;
// Values that print as zero at four decimals lose their sign.
constexpr double kListZero = 0.00005;

}  // namespace

AcString listNumber(double value)
{
    if (std::fabs(value) < kListZero)
        value = 0.0;
    AcString text;
    text.format(L"%.4f", value);
    return text;
}

void listLine(const ACHAR* label, const AcString& value)
{
    acutPrintf(L"\n%*s    %s", kListLabelWidth, label, value.kwszPtr());
}

void listPoint(const ACHAR* label, const AcGePoint3d& point)
{
    listLine(label, AcString(L"X=") + listNumber(point.x) + L"  Y=" + listNumber(point.y) + L"  Z=" +
                        listNumber(point.z));
}

void listVector(const ACHAR* label, const AcGeVector3d& vector)
{
    listLine(label, AcString(L"X=") + listNumber(vector.x) + L"  Y=" + listNumber(vector.y) + L"  Z=" +
                        listNumber(vector.z));
}

void listValue(const ACHAR* label, double value)
{
    listLine(label, listNumber(value));
}

void listAngle(const ACHAR* label, double radians)
{
    listLine(label, listNumber(radians * kRadiansToDegrees));
}

void listText(const ACHAR* label, const ACHAR* text)
{
    listLine(label, AcString(L"\"") + text + L"\"");
}

void listNote(const AcString& text)
{
    listLine(L"", text);
}

}  // namespace hostents
