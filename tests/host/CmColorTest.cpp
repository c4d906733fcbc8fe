// The colour classes: the exact RGBM words that module data stores, the index palette and
// its closest-match search, and the agreement of AcCmColor with the entity colour it holds.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <sstream>

#include "dbcolor.h"

namespace {

constexpr Adesk::UInt32 kTrueColour123456 = 0xC2123456u;

AcCmEntityColor entityColorWithWord(Adesk::UInt32 rgbm)
{
    AcCmEntityColor color;
    color.setRGBM(rgbm);
    return color;
}

template <typename T>
std::string printed(const T& value)
{
    std::ostringstream os;
    os << value;
    return os.str();
}

TEST(CmColorMethodTest, MethodNumbersAreTheHostsAndSitInTheTopByte)
{
    struct Row {
        const char* name;
        AcCmEntityColor::ColorMethod method;
        int number;
    };
    const Row rows[] = {
        {"by layer", AcCmEntityColor::kByLayer, 0xC0},    {"by block", AcCmEntityColor::kByBlock, 0xC1},
        {"true colour", AcCmEntityColor::kByColor, 0xC2}, {"index", AcCmEntityColor::kByACI, 0xC3},
        {"pen", AcCmEntityColor::kByPen, 0xC4},           {"foreground", AcCmEntityColor::kForeground, 0xC5},
        {"layer off", AcCmEntityColor::kLayerOff, 0xC6},  {"layer frozen", AcCmEntityColor::kLayerFrozen, 0xC7},
        {"none", AcCmEntityColor::kNone, 0xC8},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(static_cast<int>(row.method), row.number);
        AcCmEntityColor color = entityColorWithWord(kTrueColour123456);
        ASSERT_EQ(color.setColorMethod(row.method), Acad::eOk);
        EXPECT_EQ(color.colorMethod(), row.method);
        EXPECT_EQ(color.getRGBM() >> 24, static_cast<Adesk::UInt32>(row.number));
    }
}

TEST(CmColorMethodTest, IndexConstantsAreTheHosts)
{
    EXPECT_EQ(AcCmEntityColor::kACIbyBlock, 0);
    EXPECT_EQ(AcCmEntityColor::kACIRed, 1);
    EXPECT_EQ(AcCmEntityColor::kACIYellow, 2);
    EXPECT_EQ(AcCmEntityColor::kACIGreen, 3);
    EXPECT_EQ(AcCmEntityColor::kACICyan, 4);
    EXPECT_EQ(AcCmEntityColor::kACIBlue, 5);
    EXPECT_EQ(AcCmEntityColor::kACIMagenta, 6);
    EXPECT_EQ(AcCmEntityColor::kACIWhite, 7);
    EXPECT_EQ(AcCmEntityColor::kACIforeground, 7);
    EXPECT_EQ(AcCmEntityColor::kACImaximum, 255);
    EXPECT_EQ(AcCmEntityColor::kACIbyLayer, 256);
    EXPECT_EQ(AcCmEntityColor::kACInone, 257);
    EXPECT_EQ(AcCmEntityColor::kACIminimum, -255);
}

TEST(CmColorWordTest, SetColorIndexGivesTheHostsWords)
{
    struct Row {
        const char* name;
        Adesk::Int16 index;
        Adesk::UInt32 word;
    };
    const Row rows[] = {
        {"0 is by block", 0, 0xC1000000u},
        {"1 is red by index", 1, 0xC3000001u},
        {"7 stays an index colour", 7, 0xC3000007u},
        {"8 is the dark grey", 8, 0xC3000008u},
        {"255 is the last index", 255, 0xC30000FFu},
        {"256 is by layer", 256, 0xC0000100u},
        {"257 is no colour", 257, 0xC8000101u},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        // Starting from a true colour shows that none of its bytes survive.
        AcCmEntityColor color = entityColorWithWord(kTrueColour123456);
        ASSERT_EQ(color.setColorIndex(row.index), Acad::eOk);
        EXPECT_EQ(color.getRGBM(), row.word);
        EXPECT_EQ(color.color(), row.word);
        EXPECT_EQ(color.colorIndex(), row.index);
    }
}

TEST(CmColorWordTest, SetRGBGivesATrueColourWord)
{
    struct Row {
        const char* name;
        Adesk::UInt8 r, g, b;
        Adesk::UInt32 word;
    };
    const Row rows[] = {
        {"black", 0, 0, 0, 0xC2000000u},
        {"red", 255, 0, 0, 0xC2FF0000u},
        {"each byte in its place", 0x12, 0x34, 0x56, 0xC2123456u},
        {"small values", 1, 2, 3, 0xC2010203u},
        {"white", 255, 255, 255, 0xC2FFFFFFu},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        // By layer keeps 256 in its low bits; a true colour must overwrite them.
        AcCmEntityColor color;
        ASSERT_EQ(color.setColorIndex(AcCmEntityColor::kACIbyLayer), Acad::eOk);
        ASSERT_EQ(color.setRGB(row.r, row.g, row.b), Acad::eOk);
        EXPECT_EQ(color.getRGBM(), row.word);
        EXPECT_TRUE(color.isByColor());
        EXPECT_EQ(color.red(), row.r);
        EXPECT_EQ(color.green(), row.g);
        EXPECT_EQ(color.blue(), row.b);
        EXPECT_EQ(AcCmEntityColor(row.r, row.g, row.b).getRGBM(), row.word);
    }
}

TEST(CmColorWordTest, DefaultsAndFixedIndexMethods)
{
    EXPECT_EQ(AcCmEntityColor().getRGBM(), 0xC2000000u);
    EXPECT_EQ(AcCmColor().getRGBM(), 0xC0000100u);
    EXPECT_TRUE(AcCmColor().isByLayer());

    // A method with a fixed meaning writes the same word as the matching index.
    struct Row {
        const char* name;
        AcCmEntityColor::ColorMethod method;
        Adesk::UInt32 word;
        Adesk::Int16 index;
    };
    const Row rows[] = {
        {"by layer", AcCmEntityColor::kByLayer, 0xC0000100u, 256},
        {"by block", AcCmEntityColor::kByBlock, 0xC1000000u, 0},
        {"foreground", AcCmEntityColor::kForeground, 0xC5000007u, 7},
        {"none", AcCmEntityColor::kNone, 0xC8000101u, 257},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcCmEntityColor color = entityColorWithWord(kTrueColour123456);
        ASSERT_EQ(color.setColorMethod(row.method), Acad::eOk);
        EXPECT_EQ(color.getRGBM(), row.word);
        EXPECT_EQ(color.colorIndex(), row.index);
        EXPECT_EQ(AcCmEntityColor(row.method).getRGBM(), row.word);
    }
}

TEST(CmColorWordTest, RefusedInputLeavesTheWord)
{
    const Adesk::Int16 badIndices[] = {-1, -255, 258, 1000, std::numeric_limits<Adesk::Int16>::min(),
                                       std::numeric_limits<Adesk::Int16>::max()};
    const Adesk::UInt32 startWords[] = {kTrueColour123456, 0xC0000100u, 0xC3000005u};
    for (const Adesk::UInt32 start : startWords) {
        for (const Adesk::Int16 bad : badIndices) {
            SCOPED_TRACE(testing::Message() << "index " << bad << " on " << entityColorWithWord(start));
            AcCmEntityColor color = entityColorWithWord(start);
            EXPECT_EQ(color.setColorIndex(bad), Acad::eInvalidInput);
            EXPECT_EQ(color.getRGBM(), start);
        }
        const int badMethods[] = {0x00, 0xBF, 0xC9, 0xFF};
        for (const int bad : badMethods) {
            SCOPED_TRACE(testing::Message() << "method " << bad << " on " << entityColorWithWord(start));
            AcCmEntityColor color = entityColorWithWord(start);
            EXPECT_EQ(color.setColorMethod(static_cast<AcCmEntityColor::ColorMethod>(bad)), Acad::eInvalidInput);
            EXPECT_EQ(color.getRGBM(), start);
        }
    }
}

TEST(CmColorWordTest, ForeignWordsAreKeptAsTheyAre)
{
    // A word whose method byte is not a colour method (old data stored bare indices)
    // must come back unchanged so that its owner can recognise and convert it.
    const AcCmEntityColor color = entityColorWithWord(300u);
    EXPECT_EQ(color.getRGBM(), 300u);
    EXPECT_EQ(static_cast<int>(color.colorMethod()), 0);
    EXPECT_FALSE(color.isByColor() || color.isByLayer() || color.isByBlock() || color.isByACI());
}

TEST(CmColorPredicateTest, PredicatesReadTheMethodAndTheSpecialIndices)
{
    struct Row {
        const char* name;
        Adesk::UInt32 word;
        bool byLayer, byBlock, byACI, byColor, foreground, none;
    };
    const Row rows[] = {
        {"by layer", 0xC0000100u, true, false, false, false, false, false},
        {"256 kept as an index", 0xC3000100u, true, false, true, false, false, false},
        {"by block", 0xC1000000u, false, true, false, false, false, false},
        {"0 kept as an index", 0xC3000000u, false, true, true, false, false, false},
        {"white by index", 0xC3000007u, false, false, true, false, false, false},
        {"true colour whose low bits read 256", 0xC2000100u, false, false, false, true, false, false},
        {"true colour black", 0xC2000000u, false, false, false, true, false, false},
        {"foreground", 0xC5000007u, false, false, false, false, true, false},
        {"none", 0xC8000101u, false, false, false, false, false, true},
        {"257 kept as an index", 0xC3000101u, false, false, true, false, false, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AcCmEntityColor entity = entityColorWithWord(row.word);
        AcCmColor color;
        color.setRGBM(row.word);
        const AcCmColorBase& base = color;
        EXPECT_EQ(base.isByLayer(), row.byLayer);
        EXPECT_EQ(base.isByBlock(), row.byBlock);
        EXPECT_EQ(base.isByACI(), row.byACI);
        EXPECT_EQ(base.isByColor(), row.byColor);
        EXPECT_EQ(base.isForeground(), row.foreground);
        EXPECT_EQ(base.isNone(), row.none);
        EXPECT_EQ(entity.isByLayer(), row.byLayer);
        EXPECT_EQ(entity.isByBlock(), row.byBlock);
        EXPECT_EQ(entity.isByACI(), row.byACI);
        EXPECT_EQ(entity.isByColor(), row.byColor);
        EXPECT_EQ(entity.isForeground(), row.foreground);
        EXPECT_EQ(entity.isNone(), row.none);
    }
}

TEST(CmPaletteTest, IndicesFollowTheirRule)
{
    struct Row {
        const char* name;
        Adesk::UInt8 index;
        Adesk::UInt32 rgb;
    };
    const Row rows[] = {
        {"1 red", 1, 0xFF0000u},
        {"2 yellow", 2, 0xFFFF00u},
        {"3 green", 3, 0x00FF00u},
        {"4 cyan", 4, 0x00FFFFu},
        {"5 blue", 5, 0x0000FFu},
        {"6 magenta", 6, 0xFF00FFu},
        {"7 white", 7, 0xFFFFFFu},
        {"8 dark grey", 8, 0x808080u},
        {"9 light grey", 9, 0xC0C0C0u},
        {"0 by block is shown as 7", 0, 0xFFFFFFu},
        {"11 red at half saturation", 11, 0xFF8080u},
        {"12 red at value 0.65", 12, 0xA60000u},
        {"20 hue 15 degrees", 20, 0xFF4000u},
        {"45 hue 45, value 0.5, half saturation", 45, 0x807040u},
        {"130 hue 180 is cyan", 130, 0x00FFFFu},
        {"249 hue 345, value 0.15, half saturation", 249, 0x261318u},
        {"250 first grey", 250, 0x333333u},
        {"254 light grey", 254, 0xBEBEBEu},
        {"255 white", 255, 0xFFFFFFu},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(AcCmEntityColor::lookUpRGB(row.index), row.rgb);
    }
}

TEST(CmPaletteTest, IndexToColourToIndexRoundTrips)
{
    // Seven hue entries repeat a standard colour; the closest-match search gives the
    // standard index for them, and only for them.
    struct Repeat {
        Adesk::UInt8 index;
        Adesk::UInt8 standard;
    };
    const Repeat repeats[] = {{10, 1}, {50, 2}, {90, 3}, {130, 4}, {170, 5}, {210, 6}, {255, 7}};
    for (int i = 1; i <= 255; ++i) {
        SCOPED_TRACE(testing::Message() << "index " << i);
        const Adesk::UInt8 index = static_cast<Adesk::UInt8>(i);
        const Adesk::UInt32 rgb = AcCmEntityColor::lookUpRGB(index);
        const Adesk::UInt8 back = AcCmEntityColor::lookUpACI(static_cast<Adesk::UInt8>(rgb >> 16),
                                                             static_cast<Adesk::UInt8>(rgb >> 8),
                                                             static_cast<Adesk::UInt8>(rgb));
        Adesk::UInt8 expected = index;
        for (const Repeat& r : repeats)
            if (r.index == index)
                expected = r.standard;
        EXPECT_EQ(back, expected);
        EXPECT_EQ(AcCmEntityColor::lookUpRGB(back), rgb);
    }
}

TEST(CmPaletteTest, TrueColoursAnswerTheClosestIndex)
{
    struct Row {
        const char* name;
        Adesk::UInt8 r, g, b;
        Adesk::Int16 index;
    };
    const Row rows[] = {
        {"exact red", 255, 0, 0, 1},
        {"exact blue", 0, 0, 255, 5},
        {"white is 7, not its repeat 255", 255, 255, 255, 7},
        {"near red", 254, 1, 1, 1},
        {"near the dark grey", 129, 127, 128, 8},
        {"exact light grey of the ramp", 190, 190, 190, 254},
        {"halfway between 254 and 9 goes to the lower index", 191, 191, 191, 9},
        {"black ties the three darkest shades; the first wins", 0, 0, 0, 18},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(AcCmEntityColor::lookUpACI(row.r, row.g, row.b), row.index);
        const AcCmEntityColor entity(row.r, row.g, row.b);
        EXPECT_EQ(entity.colorIndex(), row.index);
        EXPECT_TRUE(entity.isByColor()) << "asking for the index must not change the colour";
        AcCmColor color;
        color.setRGB(row.r, row.g, row.b);
        EXPECT_EQ(color.colorIndex(), static_cast<Adesk::UInt16>(row.index));
    }
}

TEST(CmPaletteTest, IndexColoursAnswerTheirPaletteComponents)
{
    AcCmEntityColor color;
    ASSERT_EQ(color.setColorIndex(45), Acad::eOk);
    EXPECT_EQ(color.red(), 0x80);
    EXPECT_EQ(color.green(), 0x70);
    EXPECT_EQ(color.blue(), 0x40);
    EXPECT_EQ(color.getRGBM(), 0xC300002Du) << "reading the components must not change the word";
}

TEST(CmColorTest, AgreesWithItsEntityColour)
{
    struct Row {
        const char* name;
        void (*set)(AcCmColor&);
        void (*setEntity)(AcCmEntityColor&);
    };
    const Row rows[] = {
        {"index 0", [](AcCmColor& c) { c.setColorIndex(0); }, [](AcCmEntityColor& c) { c.setColorIndex(0); }},
        {"index 7", [](AcCmColor& c) { c.setColorIndex(7); }, [](AcCmEntityColor& c) { c.setColorIndex(7); }},
        {"index 200", [](AcCmColor& c) { c.setColorIndex(200); }, [](AcCmEntityColor& c) { c.setColorIndex(200); }},
        {"index 256", [](AcCmColor& c) { c.setColorIndex(256); }, [](AcCmEntityColor& c) { c.setColorIndex(256); }},
        {"index 257", [](AcCmColor& c) { c.setColorIndex(257); }, [](AcCmEntityColor& c) { c.setColorIndex(257); }},
        {"true colour", [](AcCmColor& c) { c.setRGB(10, 20, 200); },
         [](AcCmEntityColor& c) { c.setRGB(10, 20, 200); }},
        {"method by block", [](AcCmColor& c) { c.setColorMethod(AcCm::kByBlock); },
         [](AcCmEntityColor& c) { c.setColorMethod(AcCm::kByBlock); }},
        {"whole word", [](AcCmColor& c) { c.setColor(0xC30000A0u); },
         [](AcCmEntityColor& c) { c.setColor(0xC30000A0u); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcCmColor color;
        row.set(color);
        AcCmEntityColor entity;
        row.setEntity(entity);
        EXPECT_EQ(color.entityColor(), entity);
        EXPECT_EQ(color.getRGBM(), entity.getRGBM());
        EXPECT_EQ(color.color(), entity.color());
        EXPECT_EQ(color.colorMethod(), entity.colorMethod());
        EXPECT_EQ(color.colorIndex(), static_cast<Adesk::UInt16>(entity.colorIndex()));
        EXPECT_EQ(color.red(), entity.red());
        EXPECT_EQ(color.green(), entity.green());
        EXPECT_EQ(color.blue(), entity.blue());
    }
}

TEST(CmColorTest, UnsignedIndexRefusesWhatTheEntityColourRefuses)
{
    const Adesk::UInt16 badIndices[] = {258, 1000, 0xFFFF};
    for (const Adesk::UInt16 bad : badIndices) {
        SCOPED_TRACE(bad);
        AcCmColor color;
        color.setRGB(1, 2, 3);
        ASSERT_TRUE(color.setNames(L"Slate"));
        EXPECT_EQ(color.setColorIndex(bad), Acad::eInvalidInput);
        EXPECT_EQ(color.getRGBM(), 0xC2010203u);
        EXPECT_STREQ(color.colorName(), L"Slate") << "a refused change keeps the names";
    }
    // Layer-off colours keep a negated index; the unsigned index is its magnitude.
    AcCmColor layerOff;
    layerOff.setRGBM(0xC600FFFBu);
    EXPECT_EQ(layerOff.colorIndex(), 5);
}

TEST(CmColorTest, NamesBelongToOneColour)
{
    AcCmColor color;
    color.setRGB(0x3A, 0x5F, 0x8C);
    ASSERT_TRUE(color.setNames(L"海蓝", L"Roof Colours"));
    EXPECT_STREQ(color.colorName(), L"海蓝");
    EXPECT_STREQ(color.bookName(), L"Roof Colours");
    EXPECT_TRUE(color.hasColorName());
    EXPECT_TRUE(color.hasBookName());

    AcCmColor same = color;
    EXPECT_EQ(same, color);
    same.setRGB(0x3A, 0x5F, 0x8C);
    EXPECT_TRUE(same.hasColorName()) << "setting the same value keeps the names";
    EXPECT_EQ(same, color);

    AcCmColor unnamed;
    unnamed.setRGB(0x3A, 0x5F, 0x8C);
    EXPECT_NE(unnamed, color) << "names take part in equality";
    EXPECT_EQ(unnamed.entityColor(), color.entityColor());

    AcCmColor changed = color;
    changed.setColorIndex(3);
    EXPECT_FALSE(changed.hasColorName());
    EXPECT_FALSE(changed.hasBookName());

    EXPECT_FALSE(color.setNames(nullptr, L"Book")) << "a book name needs a colour name";
    EXPECT_STREQ(color.colorName(), L"海蓝");
    ASSERT_TRUE(color.setNames(nullptr));
    EXPECT_FALSE(color.hasColorName());
    EXPECT_FALSE(color.hasBookName());
}

TEST(CmColorTest, PrintsMethodValueAndWord)
{
    EXPECT_EQ(printed(entityColorWithWord(0xC3000007u)), "ACI 7 (0xC3000007)");
    EXPECT_EQ(printed(AcCmEntityColor(1, 2, 3)), "RGB 1,2,3 (0xC2010203)");
    EXPECT_EQ(printed(AcCmColor()), "ByLayer (0xC0000100)");
    EXPECT_EQ(printed(entityColorWithWord(300u)), "method 0 (0x0000012C)");
    AcCmColor named;
    named.setRGB(0, 0, 255);
    named.setNames(L"蓝", L"Book");
    EXPECT_EQ(printed(named), "RGB 0,0,255 (0xC20000FF) \"蓝\" in \"Book\"");
}

TEST(CmTransparencyTest, AlphaAndMethod)
{
    const AcCmTransparency byLayer;
    EXPECT_TRUE(byLayer.isByLayer());
    EXPECT_FALSE(byLayer.isByAlpha());

    struct Row {
        const char* name;
        double percent;
        Adesk::UInt8 alpha;
    };
    const Row rows[] = {
        {"half rounds to nearest", 0.5, 128}, {"clear", 0.0, 0},         {"solid", 1.0, 255},
        {"below 0 clamps", -3.0, 0},         {"above 1 clamps", 7.0, 255},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcCmTransparency t;
        t.setAlphaPercent(row.percent);
        EXPECT_TRUE(t.isByAlpha());
        EXPECT_EQ(t.alpha(), row.alpha);
        EXPECT_NEAR(t.alphaPercent(), row.alpha / 255.0, 1e-12);
    }

    AcCmTransparency t(static_cast<Adesk::UInt8>(40));
    t.setAlphaPercent(std::nan(""));
    EXPECT_EQ(t.alpha(), 40) << "a non-finite fraction is ignored";
    EXPECT_FALSE(t.isClear() || t.isSolid());
    EXPECT_TRUE(AcCmTransparency(static_cast<Adesk::UInt8>(0)).isClear());
    EXPECT_TRUE(AcCmTransparency(static_cast<Adesk::UInt8>(255)).isSolid());

    // The alpha only matters under kByAlpha.
    AcCmTransparency a(static_cast<Adesk::UInt8>(10));
    AcCmTransparency b(static_cast<Adesk::UInt8>(20));
    EXPECT_NE(a, b);
    a.setMethod(AcCmTransparency::kByBlock);
    b.setMethod(AcCmTransparency::kByBlock);
    EXPECT_EQ(a, b);
    b.setMethod(AcCmTransparency::kByAlpha);
    EXPECT_EQ(b.alpha(), 20) << "the alpha survives a change of method";
    EXPECT_EQ(printed(b), "Alpha 20");
    EXPECT_EQ(printed(a), "ByBlock");
}

}  // namespace
