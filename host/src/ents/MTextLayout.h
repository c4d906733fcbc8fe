// MTextLayout: how multiline text falls into lines with the headless font model. The
// contents' codes are resolved (\P and line feeds break paragraphs, \~ is a no-break
// space, \\ \{ \} are the characters themselves, \U+XXXX names a character, \S a^b; stacks
// as a/b, property codes such as \f...; \H...; \C...; and the toggles \L \O \K are
// dropped: the text keeps one height and font). With a defined width, lines wrap at
// spaces and between full-width characters; a word longer than the width keeps a line of
// its own. Baselines lie 5/3 x height x spacing factor apart; the box is the defined width
// (or the widest line) by cap height plus one pitch per further line, and the attachment
// says which of its nine points the location is.
#pragma once

#include <string>
#include <vector>

namespace hostents {

class MTextLayout {
public:
    static constexpr double kLinePitch = 5.0 / 3.0;

    struct Line {
        std::wstring text;
        double x = 0.0;       // start of the baseline, along the direction from the location
        double y = 0.0;       // baseline, along the up vector from the location
        double width = 0.0;
    };

    // The paragraphs of the contents with every code resolved.
    static std::vector<std::wstring> paragraphs(const std::wstring& contents);

    // attachment 1..9 (top left .. bottom right).
    MTextLayout(const std::wstring& contents, double height, double definedWidth, double spacingFactor,
                int attachment);

    const std::vector<Line>& lines() const { return m_lines; }
    double actualWidth() const { return m_actualWidth; }
    double actualHeight() const { return m_actualHeight; }
    double boxWidth() const { return m_boxWidth; }
    // The box's top left corner relative to the location.
    double boxLeft() const { return m_boxLeft; }
    double boxTop() const { return m_boxTop; }

    // Where attachment puts the box's top left corner for a box of this size.
    static void boxCorner(int attachment, double boxWidth, double boxHeight, double& left, double& top);

private:
    std::vector<Line> m_lines;
    double m_actualWidth = 0.0;
    double m_actualHeight = 0.0;
    double m_boxWidth = 0.0;
    double m_boxLeft = 0.0;
    double m_boxTop = 0.0;
};

}  // namespace hostents
