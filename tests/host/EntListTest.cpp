// The list output of the basic entities: the host's standard lines, then each entity's own.
#include <gtest/gtest.h>

#include <string>

#include "EntTestSupport.h"
#include "dbents.h"
#include "dbmtext.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

class EntListTest : public ::testing::Test {
protected:
    // Appends the entity and answers its list output with the handle replaced by "<h>".
    std::string listInModelSpace(AcDbEntity* entity)
    {
        const AcDbObjectId id = m_wdb.addToModelSpace(entity);
        AcDbEntity* opened = nullptr;
        EXPECT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
        std::string text = enttest::listOf(opened);
        opened->close();
        const std::string handle = enttest::text(id.handle());
        const size_t at = text.find("Handle = " + handle);
        EXPECT_NE(at, std::string::npos) << text;
        if (at != std::string::npos)
            text.replace(at + 9, handle.size(), "<h>");
        return text;
    }

    enttest::WorkingDatabase m_wdb;
};

TEST_F(EntListTest, LineWithColourAndLinetype)
{
    auto* line = new AcDbLine(AcGePoint3d(1, 2, 0), AcGePoint3d(4, 6, 0));
    line->setDatabaseDefaults();
    line->setColorIndex(1);
    line->setLinetype(L"Continuous");
    EXPECT_EQ(listInModelSpace(line),
              "\n"
              "                  LINE    Layer: \"0\"\n"
              "                          Space: Model space\n"
              "                          Color: 1 (red)\n"
              "                          Linetype: \"Continuous\"\n"
              "                          Handle = <h>\n"
              "            from point    X=1.0000  Y=2.0000  Z=0.0000\n"
              "              to point    X=4.0000  Y=6.0000  Z=0.0000\n"
              "                length    5.0000\n"
              "     angle in XY plane    53.1301\n"
              "                 delta    X=3.0000  Y=4.0000  Z=0.0000");
}

TEST_F(EntListTest, CircleByLayer)
{
    auto* circle = new AcDbCircle(AcGePoint3d(-1, 0.5, 0), AcGeVector3d::kZAxis, 2.0);
    circle->setDatabaseDefaults();
    EXPECT_EQ(listInModelSpace(circle),
              "\n"
              "                CIRCLE    Layer: \"0\"\n"
              "                          Space: Model space\n"
              "                          Handle = <h>\n"
              "          center point    X=-1.0000  Y=0.5000  Z=0.0000\n"
              "                radius    2.0000\n"
              "         circumference    12.5664\n"
              "                  area    12.5664");
}

TEST_F(EntListTest, ArcWithThicknessAndNormal)
{
    auto* arc = new AcDbArc(AcGePoint3d::kOrigin, AcGeVector3d(0, 0, -1), 1.0, 0.0, kPi / 2);
    arc->setDatabaseDefaults();
    arc->setThickness(0.5);
    EXPECT_EQ(listInModelSpace(arc),
              "\n"
              "                   ARC    Layer: \"0\"\n"
              "                          Space: Model space\n"
              "                          Handle = <h>\n"
              "          center point    X=0.0000  Y=0.0000  Z=0.0000\n"
              "                radius    1.0000\n"
              "           start angle    0.0000\n"
              "             end angle    90.0000\n"
              "           total angle    90.0000\n"
              "                length    1.5708\n"
              "                  area    0.2854\n"
              "             thickness    0.5000\n"
              "                normal    X=0.0000  Y=0.0000  Z=-1.0000");
}

TEST_F(EntListTest, JustifiedText)
{
    auto* text = new AcDbText(AcGePoint3d::kOrigin, L"\x9762\x677F A-1", AcDbObjectId::kNull, 2.5, kPi / 6);
    text->setDatabaseDefaults();
    text->setHorizontalMode(AcDb::kTextCenter);
    text->setVerticalMode(AcDb::kTextVertMid);
    text->setAlignmentPoint(AcGePoint3d(10, 5, 0));
    text->setColorIndex(0);
    EXPECT_EQ(listInModelSpace(text),
              "\n"
              "                  TEXT    Layer: \"0\"\n"
              "                          Space: Model space\n"
              "                          Color: BYBLOCK\n"
              "                          Handle = <h>\n"
              "                 style    \"Standard\"\n"
              "                  text    \"\xE9\x9D\xA2\xE6\x9D\xBF A-1\"\n"
              "              position    X=5.8619  Y=1.1675  Z=0.0000\n"
              "       alignment point    X=10.0000  Y=5.0000  Z=0.0000\n"
              "                height    2.5000\n"
              "              rotation    30.0000\n"
              "          width factor    1.0000\n"
              "               oblique    0.0000\n"
              "         justification    center middle");
}

TEST_F(EntListTest, MultilineText)
{
    auto* mtext = new AcDbMText();
    mtext->setDatabaseDefaults();
    mtext->setLocation(AcGePoint3d(1, 1, 0));
    mtext->setTextHeight(2.0);
    mtext->setWidth(30.0);
    mtext->setAttachment(AcDbMText::kMiddleCenter);
    mtext->setContents(L"Roof\\Ppanels");
    EXPECT_EQ(listInModelSpace(mtext),
              "\n"
              "                 MTEXT    Layer: \"0\"\n"
              "                          Space: Model space\n"
              "                          Handle = <h>\n"
              "                 style    \"Standard\"\n"
              "              contents    \"Roof\\Ppanels\"\n"
              "              location    X=1.0000  Y=1.0000  Z=0.0000\n"
              "           text height    2.0000\n"
              "         defined width    30.0000\n"
              "            attachment    middle center\n"
              "        flow direction    left to right\n"
              "              rotation    0.0000\n"
              "   line spacing factor    1.0000\n"
              "          actual width    7.2000\n"
              "         actual height    5.3333");
}

TEST_F(EntListTest, AnEntityInNoDatabaseListsWithoutASpace)
{
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(0, -2, 0));
    const std::string text = enttest::listOf(&line);
    EXPECT_EQ(text.substr(0, text.find("from point")),
              "\n"
              "                  LINE    Layer: \"\"\n"
              "                          Color: none\n"
              "                          Handle = 0\n"
              "            ");
    EXPECT_NE(text.find("angle in XY plane    270.0000"), std::string::npos) << text;
}

}  // namespace
