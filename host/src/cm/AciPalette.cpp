// AciPalette: the index colours, built once at compile time from their rule.
//   1-9      the standard colours: red, yellow, green, cyan, blue, magenta, white, two greys;
//   10-249   24 hues 15 degrees apart, ten variants each: for index i the hue is
//            (i / 10 - 1) * 15 degrees; the last digit d picks the value from the pairs
//            (0,1) 1.0, (2,3) 0.65, (4,5) 0.5, (6,7) 0.3, (8,9) 0.15, and an odd d halves
//            the saturation (a tint of the full colour of the even digit before it);
//   250-255  a grey ramp.
// Index 0 (by block) has no colour of its own; it is shown as index 7 outside a block.
#include "AciPalette.h"

#include <array>

namespace headless {
namespace {

struct Rgb {
    Adesk::UInt8 r;
    Adesk::UInt8 g;
    Adesk::UInt8 b;
};

constexpr Adesk::UInt8 toByte(double unit)
{
    return static_cast<Adesk::UInt8>(unit * 255.0 + 0.5);
}

// The usual hexcone: six 60-degree sectors between the primary and secondary colours.
constexpr Rgb fromHsv(double hueDegrees, double saturation, double value)
{
    const int sector = static_cast<int>(hueDegrees / 60.0) % 6;
    const double f = hueDegrees / 60.0 - static_cast<int>(hueDegrees / 60.0);
    const Adesk::UInt8 v = toByte(value);
    const Adesk::UInt8 p = toByte(value * (1.0 - saturation));
    const Adesk::UInt8 q = toByte(value * (1.0 - saturation * f));
    const Adesk::UInt8 t = toByte(value * (1.0 - saturation * (1.0 - f)));
    switch (sector) {
    case 0: return {v, t, p};
    case 1: return {q, v, p};
    case 2: return {p, v, t};
    case 3: return {p, q, v};
    case 4: return {t, p, v};
    default: return {v, p, q};
    }
}

constexpr int kFirstHueIndex = 10;
constexpr int kFirstGreyIndex = 250;
constexpr double kHueStepDegrees = 15.0;
constexpr double kTintSaturation = 0.5;
constexpr double kShadeValues[5] = {1.0, 0.65, 0.5, 0.3, 0.15};
constexpr Adesk::UInt8 kGreyRamp[6] = {51, 80, 105, 130, 190, 255};

constexpr std::array<Rgb, AciPalette::kSize> buildPalette()
{
    std::array<Rgb, AciPalette::kSize> palette{};
    palette[0] = {255, 255, 255};
    palette[1] = {255, 0, 0};
    palette[2] = {255, 255, 0};
    palette[3] = {0, 255, 0};
    palette[4] = {0, 255, 255};
    palette[5] = {0, 0, 255};
    palette[6] = {255, 0, 255};
    palette[7] = {255, 255, 255};
    palette[8] = {128, 128, 128};
    palette[9] = {192, 192, 192};
    for (int i = kFirstHueIndex; i < kFirstGreyIndex; ++i) {
        const int digit = i % 10;
        const double hue = (i / 10 - 1) * kHueStepDegrees;
        const double saturation = (digit % 2 == 1) ? kTintSaturation : 1.0;
        palette[static_cast<std::size_t>(i)] = fromHsv(hue, saturation, kShadeValues[digit / 2]);
    }
    for (int i = kFirstGreyIndex; i < AciPalette::kSize; ++i) {
        const Adesk::UInt8 grey = kGreyRamp[i - kFirstGreyIndex];
        palette[static_cast<std::size_t>(i)] = {grey, grey, grey};
    }
    return palette;
}

constexpr std::array<Rgb, AciPalette::kSize> kPalette = buildPalette();

static_assert(kPalette[19].r == 38 && kPalette[19].g == 19 && kPalette[19].b == 19,
              "the darkest tint of red is a quarter-value pink");
static_assert(kPalette[20].r == 255 && kPalette[20].g == 64 && kPalette[20].b == 0,
              "hue 15 degrees lies a quarter of the way from red to yellow");

}  // namespace

Adesk::UInt32 AciPalette::rgb(Adesk::UInt8 index)
{
    const Rgb& c = kPalette[index];
    return (static_cast<Adesk::UInt32>(c.r) << 16) | (static_cast<Adesk::UInt32>(c.g) << 8) | c.b;
}

Adesk::UInt8 AciPalette::closestIndex(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
{
    int best = 1;
    int bestDistance = -1;
    for (int i = 1; i < kSize; ++i) {
        const Rgb& c = kPalette[static_cast<std::size_t>(i)];
        const int dr = c.r - red;
        const int dg = c.g - green;
        const int db = c.b - blue;
        const int distance = dr * dr + dg * dg + db * db;
        if (bestDistance < 0 || distance < bestDistance) {
            best = i;
            bestDistance = distance;
            if (distance == 0)
                break;
        }
    }
    return static_cast<Adesk::UInt8>(best);
}

}  // namespace headless
