// SVG plots: the elements each primitive becomes (with the y axis flipped), colours from
// the palette and the layer, layers as groups, the view box around the extents, Chinese
// text, and proxies plotted from their kept graphics.
#include <gtest/gtest.h>

#include "FileTestSupport.h"
#include "AcDbPolyline.h"
#include "headless/SvgPlot.h"

using namespace filetest;

namespace {

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

class SvgPlotTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
        FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
    }
    AcDbDatabase db;
};

struct ShapeCase {
    const char* name;
    std::function<AcDbEntity*()> make;
    const char* expected;
};

TEST_F(SvgPlotTest, EachEntityBecomesItsShapeWithYFlipped)
{
    const ShapeCase cases[] = {
        {"line", [] { return new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 5, 0)); },
         "<polyline points=\"0,0 10,-5\""},
        {"circle", [] { return new AcDbCircle(AcGePoint3d(3, 4, 0), AcGeVector3d::kZAxis, 2); },
         "<circle cx=\"3\" cy=\"-4\" r=\"2\""},
        // A quarter arc counter-clockwise from (5,0) to (0,5) about the origin: sweep flag 0.
        {"arc", [] { return new AcDbArc(AcGePoint3d(0, 0, 0), 5, 0, 1.5707963267948966); },
         "<path d=\"M5,0 A5,5 0 0,0 0,-5\""},
        // Bulge 1 from (0,0) to (10,0): the half circle below, counter-clockwise.
        {"polyline with a bulge",
         [] {
             auto* p = new AcDbPolyline();
             p->addVertexAt(0, AcGePoint2d(0, 0), 1.0);
             p->addVertexAt(1, AcGePoint2d(10, 0));
             p->addVertexAt(2, AcGePoint2d(10, 5));
             return p;
         },
         "<path d=\"M0,0 A5,5 0 0,0 10,0 L10,-5\""},
        {"text", [] { return new AcDbText(AcGePoint3d(1, 2, 0), L"檩条 <A&B>", AcDbObjectId::kNull, 2.5, 0.5235987755982988); },
         "<text transform=\"translate(1,-2) rotate(-30)\" font-size=\"2.5\""},
    };
    for (const ShapeCase& c : cases) {
        AcDbDatabase one;
        clonetest::append(&one, c.make());
        const std::string svg = headless::SvgPlot::render(&one);
        EXPECT_TRUE(contains(svg, c.expected)) << c.name << ":\n" << svg;
    }
}

TEST_F(SvgPlotTest, TextsAreEscapedAndUseAFontThatShowsChinese)
{
    clonetest::append(&db, new AcDbText(AcGePoint3d(1, 2, 0), L"檩条 <A&B>", AcDbObjectId::kNull, 2.5));
    const std::string svg = headless::SvgPlot::render(&db);
    EXPECT_TRUE(contains(svg, ">檩条 &lt;A&amp;B&gt;</text>")) << svg;
    EXPECT_TRUE(contains(svg, "font-family=\"'WenQuanYi Micro Hei'")) << svg;
}

TEST_F(SvgPlotTest, ColoursComeFromThePaletteAndTheLayer)
{
    const AcDbObjectId blue = clonetest::addLayer(&db, L"屋面 1", 5);
    auto* red = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
    red->setColorIndex(1);
    clonetest::append(&db, red);
    auto* byLayer = new AcDbLine(AcGePoint3d(0, 1, 0), AcGePoint3d(1, 1, 0));
    byLayer->setLayer(blue);
    clonetest::append(&db, byLayer);
    auto* white = new AcDbLine(AcGePoint3d(0, 2, 0), AcGePoint3d(1, 2, 0));
    white->setColorIndex(7);
    clonetest::append(&db, white);
    const std::string svg = headless::SvgPlot::render(&db);
    EXPECT_TRUE(contains(svg, "<polyline points=\"0,0 1,0\" stroke=\"#FF0000\"/>")) << svg;
    EXPECT_TRUE(contains(svg, "<polyline points=\"0,-1 1,-1\" stroke=\"#0000FF\"/>")) << svg;
    EXPECT_TRUE(contains(svg, "<polyline points=\"0,-2 1,-2\" stroke=\"#000000\"/>")) << svg;
    // Each layer is a group; names that are not XML names are made into one.
    EXPECT_TRUE(contains(svg, "<g id=\"layer-0\" data-layer=\"0\">")) << svg;
    EXPECT_TRUE(contains(svg, "<g id=\"layer-屋面_1\" data-layer=\"屋面 1\">")) << svg;
}

// A linetype with skips strokes dashed: its own pattern, the layer's through BYLAYER, and
// nothing for CONTINUOUS; scaled by the entity's linetype scale.
TEST_F(SvgPlotTest, LinetypesWithSkipsAreStrokedDashed)
{
    AcDbLinetypeTable* table = nullptr;
    ASSERT_EQ(db.getLinetypeTable(table, AcDb::kForWrite), Acad::eOk);
    auto* dashDot = new AcDbLinetypeTableRecord();
    dashDot->setName(L"QX-DASH");
    dashDot->setNumDashes(3);
    dashDot->setDashLengthAt(0, 6.0);
    dashDot->setDashLengthAt(1, -2.0);
    dashDot->setDashLengthAt(2, -1.0);
    AcDbObjectId dashId;
    ASSERT_EQ(table->add(dashId, dashDot), Acad::eOk);
    dashDot->close();
    AcDbObjectId byLayer;
    AcDbObjectId continuous;
    table->getAt(L"ByLayer", byLayer);
    table->getAt(L"Continuous", continuous);
    table->close();

    const AcDbObjectId dashedLayer = clonetest::addLayer(&db, L"虚线层", 7);
    AcDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(acdbOpenObject(layer, dashedLayer, AcDb::kForWrite), Acad::eOk);
    layer->setLinetypeObjectId(dashId);
    layer->close();

    auto* own = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(100, 0, 0));
    own->setLinetype(dashId);
    own->setLinetypeScale(2.0);
    clonetest::append(&db, own);
    auto* fromLayer = new AcDbLine(AcGePoint3d(0, 10, 0), AcGePoint3d(100, 10, 0));
    fromLayer->setLayer(dashedLayer);
    fromLayer->setLinetype(byLayer);
    clonetest::append(&db, fromLayer);
    auto* solid = new AcDbLine(AcGePoint3d(0, 20, 0), AcGePoint3d(100, 20, 0));
    solid->setLayer(dashedLayer);
    solid->setLinetype(continuous);
    clonetest::append(&db, solid);

    const std::string svg = headless::SvgPlot::render(&db);
    // The two skips run together: 6 drawn, 3 skipped; twice that at scale 2.
    EXPECT_TRUE(contains(svg, "<polyline points=\"0,0 100,0\" stroke=\"#000000\" stroke-dasharray=\"12,6\"/>")) << svg;
    EXPECT_TRUE(contains(svg, "<polyline points=\"0,-10 100,-10\" stroke=\"#000000\" stroke-dasharray=\"6,3\"/>"))
        << svg;
    EXPECT_TRUE(contains(svg, "<polyline points=\"0,-20 100,-20\" stroke=\"#000000\"/>")) << svg;
}

TEST_F(SvgPlotTest, TheViewBoxIsTheExtentsWithAMargin)
{
    clonetest::append(&db, new AcDbLine(AcGePoint3d(10, 20, 0), AcGePoint3d(110, 70, 0)));
    headless::SvgPlotOptions options;
    options.marginFraction = 0.1;
    options.widthPixels = 600;
    const std::string svg = headless::SvgPlot::render(&db, options);
    // x from 10 - 10 to 110 + 10; page y from -(70 + 10) over 50 + 20.
    EXPECT_TRUE(contains(svg, "viewBox=\"0 -80 120 70\"")) << svg;
    EXPECT_TRUE(contains(svg, "width=\"600\" height=\"350\"")) << svg;
}

TEST_F(SvgPlotTest, TheViewBoxHoldsTheApexOfABulgedSegment)
{
    // A half circle from (0,0) to (100,0) bowing down to (50,-50): the box must reach it.
    auto* arc = new AcDbPolyline();
    arc->addVertexAt(0, AcGePoint2d(0, 0), 1.0);
    arc->addVertexAt(1, AcGePoint2d(100, 0), 0.0);
    clonetest::append(&db, arc);
    headless::SvgPlotOptions options;
    options.marginFraction = 0.0;
    options.widthPixels = 200;
    const std::string svg = headless::SvgPlot::render(&db, options);
    EXPECT_TRUE(contains(svg, "viewBox=\"0 -0 100 50\"") || contains(svg, "viewBox=\"0 0 100 50\"")) << svg;
}

TEST_F(SvgPlotTest, AnEmptyDrawingGivesAnEmptyPicture)
{
    const std::string svg = headless::SvgPlot::render(&db);
    EXPECT_TRUE(contains(svg, "<svg ")) << svg;
    EXPECT_TRUE(contains(svg, "</svg>")) << svg;
    EXPECT_FALSE(contains(svg, "<polyline")) << svg;
}

TEST_F(SvgPlotTest, ProxiesArePlottedFromTheirKeptGraphics)
{
    std::string withClass;
    Bytes bytes;
    {
        AcDbDatabase source;
        buildSample(&source);
        withClass = headless::SvgPlot::render(&source);
        bytes = writeBytes(&source);
    }
    FileTestShape::unregister();
    FileTestRecord::unregister();
    auto read = readBytes(bytes);
    const std::string withProxies = headless::SvgPlot::render(read.get());
    EXPECT_TRUE(contains(withProxies, "<circle cx=\"40\" cy=\"-40\" r=\"4\"")) << withProxies;
    EXPECT_TRUE(contains(withProxies, "<path d=\"M44,-40 A")) << withProxies;
    EXPECT_TRUE(contains(withProxies, ">转角板</text>")) << withProxies;
    EXPECT_EQ(withProxies, withClass);
}

TEST_F(SvgPlotTest, APlotIsWrittenToAFile)
{
    clonetest::append(&db, new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 1));
    TempFile file("plot.svg");
    ASSERT_EQ(headless::SvgPlot::plot(&db, file.path()), Acad::eOk);
    const Bytes written = file.contents();
    EXPECT_EQ(std::string(written.begin(), written.end()), headless::SvgPlot::render(&db));
    headless::CommandLineCapture capture;
    EXPECT_EQ(headless::SvgPlot::plot(&db, L"/nonexistent-folder/plot.svg"), Acad::eFilerError);
}

}  // namespace
