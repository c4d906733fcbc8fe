// LineListing: the shared lines of the layout lines' list output.
#include "LineListing.h"

#include <cmath>

#include "LineJsonBlocks.h"
#include "acutads.h"
#include "gevec3d.h"

namespace {

// Below this chord the list takes the X axis as the direction.
constexpr double kListChordTolerance = 1e-5;

void PrintBlock(const AcString& text, const ACHAR* textFormat, const ACHAR* emptyLine, const ACHAR* lengthFormat,
                LineListing::JsonLengths lengths)
{
    if (text.isEmpty()) {
        acutPrintf(emptyLine);
        return;
    }
    acutPrintf(textFormat, text.kwszPtr());
    if (lengths == LineListing::JsonLengths::kShown)
        acutPrintf(lengthFormat, text.length());
}

}  // namespace

double LineListing::PrintBasicGeometry(const ACHAR* title, const AcGePoint3d& start, const AcGePoint3d& end)
{
    const double chord = start.distanceTo(end);
    acutPrintf(title);
    acutPrintf(L"\n[Basic Geometry Info]");
    acutPrintf(L"\n  Start Point: (%.3f, %.3f, %.3f)", start.x, start.y, start.z);
    acutPrintf(L"\n  End Point: (%.3f, %.3f, %.3f)", end.x, end.y, end.z);
    acutPrintf(L"\n  Segment Length: %.3f", chord);
    const AcGeVector3d direction = chord < kListChordTolerance ? AcGeVector3d::kXAxis : (end - start) / chord;
    double angle = std::atan2(direction.y, direction.x) * 180.0 / kListPi;
    if (angle < 0.0)
        angle += 360.0;
    acutPrintf(L"\n  Direction Angle: %.3f deg", angle);
    return chord;
}

void LineListing::PrintJsonSection(const LineJsonBlocks& json, JsonLengths lengths)
{
    acutPrintf(L"\n[JSON Data Info]");
    PrintBlock(json.nodeBasic, L"\n  节点基本信息: %s", L"\n  节点基本信息: [无数据]", L"\n  基本信息长度: %d 字符",
               lengths);
    PrintBlock(json.shouBian, L"\n  收边信息: %s", L"\n  收边信息: [无数据]", L"\n  收边信息长度: %d 字符", lengths);
    PrintBlock(json.accessory, L"\n  辅配件信息: %s", L"\n  辅配件信息: [无数据]", L"\n  辅配件信息长度: %d 字符",
               lengths);
}
