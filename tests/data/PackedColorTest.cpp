// Packed colours: construction from indices, legacy integers, host colour integers and RGB,
// conversion back, and filing (older data stored plain indices).
#include <gtest/gtest.h>

#include "data/ArrayDataIoAdapter.h"
#include "data/PackedColor.h"
#include "dbcolor.h"

namespace {

TEST(PackedColorTest, ConstructionTable)
{
    struct Row {
        const char* what;
        PackedColor color;
        Adesk::UInt32 packed;
        int index;
    };
    const Row rows[] = {
        {"FromACI(0) is unset", PackedColor::FromACI(0), 0, 0},
        {"FromACI(257) is unset", PackedColor::FromACI(257), 0, 0},
        {"FromACI(-3) is unset", PackedColor::FromACI(-3), 0, 0},
        {"FromACI(1) is red by index", PackedColor::FromACI(1), 0xC3000001u, 1},
        {"FromACI(256) is by layer", PackedColor::FromACI(256), 0xC0000100u, 256},
        {"FromLegacyInt(0) is unset", PackedColor::FromLegacyInt(0), 0, 0},
        {"FromLegacyInt(7) is index 7", PackedColor::FromLegacyInt(7), 0xC3000007u, 7},
        {"FromLegacyInt(300) passes through", PackedColor::FromLegacyInt(300), 300u, 0},
        {"FromLegacyInt of a packed word", PackedColor::FromLegacyInt(static_cast<int>(0xC2FF8000u)), 0xC2FF8000u,
         0},
        {"FromCadColorInt(-1) is unset", PackedColor::FromCadColorInt(-1), 0, 0},
        {"FromCadColorInt(0) is by block", PackedColor::FromCadColorInt(0), 0xC1000000u, 0},
        {"FromCadColorInt(256) is by layer", PackedColor::FromCadColorInt(256), 0xC0000100u, 256},
        {"FromCadColorInt(-2) passes through", PackedColor::FromCadColorInt(-2), 0xFFFFFFFEu, 0},
        {"FromRGB(255,0,0) is a true colour", PackedColor::FromRGB(255, 0, 0), 0xC2FF0000u, 0},
        {"FromRGB(1,2,3)", PackedColor::FromRGB(1, 2, 3), 0xC2010203u, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(row.color.GetPacked(), row.packed);
        EXPECT_EQ(row.color.IsUnset(), row.packed == 0);
        EXPECT_EQ(row.color.ToColorIndex(), row.index);
    }
}

TEST(PackedColorTest, HostColoursConvertBothWays)
{
    AcCmColor layerColor;
    layerColor.setColorIndex(256);
    EXPECT_EQ(PackedColor::FromAcCmColor(layerColor).GetPacked(), 0xC0000100u);

    AcCmEntityColor rgb;
    rgb.setRGB(10, 20, 30);
    const PackedColor packed = PackedColor::FromAcCmEntityColor(rgb);
    EXPECT_EQ(packed.GetPacked(), 0xC20A141Eu);
    EXPECT_EQ(packed.ToAcCmEntityColor().getRGBM(), 0xC20A141Eu);
    EXPECT_EQ(packed.ToAcCmColor().entityColor().getRGBM(), 0xC20A141Eu);
    EXPECT_TRUE(packed.ToAcCmColor().isByColor());

    // An unset colour gives the hosts' defaults.
    EXPECT_EQ(PackedColor().ToAcCmEntityColor().getRGBM(), 0xC2000000u);
    EXPECT_EQ(PackedColor().ToAcCmColor().entityColor().getRGBM(), AcCmColor().entityColor().getRGBM());
}

TEST(PackedColorTest, EqualityComparesWords)
{
    EXPECT_EQ(PackedColor::FromACI(1), PackedColor::FromACI(1));
    // Red by index and red as a true colour look alike but differ.
    EXPECT_NE(PackedColor::FromACI(1), PackedColor::FromRGB(255, 0, 0));
}

TEST(PackedColorTest, FilingConvertsOldIndicesAndWritesPackedWords)
{
    ArrayDataIoAdapter io;
    io.Write(Adesk::UInt32(7));  // an index, as older data stored it
    io.Write(Adesk::UInt32(0));
    io.Write(Adesk::UInt32(0xC2010203u));
    PackedColor seven;
    PackedColor unset(5);
    PackedColor rgb;
    seven.DataIn(&io);
    unset.DataIn(&io);
    rgb.DataIn(&io);
    EXPECT_EQ(seven, PackedColor::FromACI(7));
    EXPECT_TRUE(unset.IsUnset());
    EXPECT_EQ(rgb.GetPacked(), 0xC2010203u);

    ArrayDataIoAdapter out;
    seven.DataOut(&out);
    Adesk::UInt32 written = 0;
    out.Read(written);
    EXPECT_EQ(written, 0xC3000007u);
}

}  // namespace
