// The tool's pieces that are simplest to test directly: the loop limits check, the JSON
// block check, the layer filter of plots and the text encoding of DXF files.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "DxfExporter.h"
#include "EntityChecks.h"
#include "SvgLayerFilter.h"

namespace {

using quarvo::EntityChecks;
using Loop = std::vector<EntityChecks::Vertex>;

TEST(EntityChecksTest, LoopsAreHeldToTheHostPolylinesLimits)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Loop square = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
    struct Case {
        const char* name;
        Loop loop;
        bool closed;
        const char* problem;
    };
    const Case cases[] = {
        {"square", square, true, ""},
        {"square with a semicircle side", {{0, 0, 0}, {10, 0, 1}, {10, 10, 0}, {0, 10, 0}}, true, ""},
        {"two vertices, open", {{0, 0, 0}, {10, 0, 0}}, false, ""},
        {"two vertices, closed",
         {{0, 0, 0}, {10, 0, 0}},
         true,
         "a closed loop needs at least 3 vertices, this one has 2"},
        {"two bulged vertices, closed: a circle", {{0, 0, 1}, {10, 0, 1}}, true, ""},
        {"one vertex, open", {{0, 0, 0}}, false, "a open loop needs at least 2 vertices, this one has 1"},
        {"a NaN", {{0, 0, 0}, {nan, 0, 0}, {10, 10, 0}}, true, "vertex 1 is not a finite number"},
        {"a bulge of 1001", {{0, 0, 0}, {10, 0, 1001}, {10, 10, 0}}, true, "vertex 1 has a bulge beyond 1000"},
        {"a repeated vertex",
         {{0, 0, 0}, {10, 0, 0}, {10, 0.000001, 0}, {0, 10, 0}},
         true,
         "vertices 1 and 2 coincide"},
        // Closed, the last vertex on the first is a segment of no length; open it is not a segment.
        {"last on first, closed", {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 0, 0}}, true, "vertices 3 and 0 coincide"},
        {"last on first, open", {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 0, 0}}, false, ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(EntityChecks::LoopProblem(c.loop, c.closed), c.problem) << c.name;
}

TEST(EntityChecksTest, InformationBlocksMustBeJson)
{
    EXPECT_EQ(EntityChecks::JsonProblem(L"{\"编号\":\"J-01\",\"宽度\":400}"), "");
    EXPECT_EQ(EntityChecks::JsonProblem(L"[1, 2]"), "");
    EXPECT_EQ(EntityChecks::JsonProblem(L"{\"a\":}"), "at byte 5: Invalid value.");
    EXPECT_EQ(EntityChecks::JsonProblem(L"abc"), "at byte 0: Invalid value.");
    const std::wstring deep = std::wstring(300, L'[') + std::wstring(300, L']');
    EXPECT_EQ(EntityChecks::JsonProblem(deep), "nested deeper than 256 levels");
    // Far deeper than any stack would take recursively.
    const std::wstring abyss = std::wstring(200000, L'[') + std::wstring(200000, L']');
    EXPECT_EQ(EntityChecks::JsonProblem(abyss), "nested deeper than 256 levels");
}

TEST(SvgLayerFilterTest, KeepsOnlyTheChosenLayersGroups)
{
    const std::string svg = "<svg>\n<g fill=\"none\">\n"
                            "<g id=\"layer-A\" data-layer=\"A&amp;B\">\n  <circle/>\n</g>\n"
                            "<g id=\"layer-C\" data-layer=\"C\">\n  <path/>\n</g>\n"
                            "</g>\n</svg>\n";
    EXPECT_EQ(quarvo::SvgLayerFilter::Keep(svg, {"A&B"}),
              "<svg>\n<g fill=\"none\">\n<g id=\"layer-A\" data-layer=\"A&amp;B\">\n  <circle/>\n</g>\n</g>\n</svg>\n");
    EXPECT_EQ(quarvo::SvgLayerFilter::Keep(svg, {"C"}),
              "<svg>\n<g fill=\"none\">\n<g id=\"layer-C\" data-layer=\"C\">\n  <path/>\n</g>\n</g>\n</svg>\n");
    EXPECT_EQ(quarvo::SvgLayerFilter::Unescape("&lt;&quot;x&apos;&gt;&amp;amp;"), "<\"x'>&amp;");
}

TEST(DxfExporterTest, TextsAreWrittenInTheGbkCodePage)
{
    // 节 is BD DA and 点 is B5 E3 in GBK; ASCII stays as it is.
    EXPECT_EQ(quarvo::DxfExporter::EncodeText(L"QX-节点"), "QX-\xBD\xDA\xB5\xE3");
    // A line break would end the DXF value: control characters become blanks.
    EXPECT_EQ(quarvo::DxfExporter::EncodeText(L"A\nB\tC"), "A B C");
    // Characters outside the code page are written as DXF's escapes of their code points.
    EXPECT_EQ(quarvo::DxfExporter::EncodeText(L"x\u0E01y"), "x\\U+0E01y");
    EXPECT_EQ(quarvo::DxfExporter::EncodeText(L""), "");
}

}  // namespace
