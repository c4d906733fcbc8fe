// TextLabel: one text shown by a panel or a flashing line: its string, place, direction,
// size, style, layer, colour and visibility, and how its owner chooses its place and angle.
// The owner keeps it, files it through the data channel and turns it into a host text.
#pragma once

#include <iosfwd>

#include "AcCmColor.h"
#include "AcString.h"
#include "adesk.h"
#include "data/PackedColor.h"
#include "dbid.h"
#include "gepnt3d.h"
#include "gevec3d.h"

class AcDbText;
class IDataIO;

namespace DbxPanel {

// Which of its owner's labels a label is. The panel lists its number and its bottom text
// by name and refreshes the size labels (length, width, both) when its size changes; the
// other kinds carry the information the layout application chooses to show.
enum class TextLabelType : Adesk::Int32 {
    kNumber = 0,
    kLength = 1,
    kWidth = 2,
    kBottomText = 3,
    kSize = 4,
    kPanelType = 5,
    kThickness = 6,
    kMaterialCode = 7,
    kColor = 8,
    kConstructionArea = 9,
    kAxis = 10,
    kSlope = 11,
    kMergeGroup = 12,
    kCustom = 13,
    kUnknown = 100,  // no type; any stored value outside 0..13 reads as this
};

// Where the owner places a label inside its oriented bounding box (x along the laying
// direction, y across it). Values not listed place it at the centre.
enum class PredefinedTextPosition : Adesk::Int32 {
    kManual = -1,  // the owner leaves the position as it was set
    kCenter = 0,
    kTopLeft = 1,
    kTopRight = 2,
    kBottomLeft = 3,
    kBottomRight = 4,
    kTopCenter = 5,
    kBottomCenter = 6,
    kMiddleLeft = 7,
    kMiddleRight = 8,
    kNearBottomEdge = 20,  // a tenth of the height above the bottom, at most 50
    kNearTopEdge = 21,     // a tenth of the height below the top, at most 50
    kOutlineTop = 30,      // on the outline's highest point across the direction
    kOutlineBottom = 31,
    kOutlineLeft = 32,
    kOutlineRight = 33,
};

// How the owner chooses a label's direction; unknown values count as kAlongReference.
enum class TextDirectionMode : Adesk::Int32 {
    kAlongReference = 0,  // along the owner's reference (laying) direction
    kPerpendicular = 1,   // at right angles to it
    kFixedAngle = 2,      // at the label's fixed angle
};

class TextLabel {
public:
    static constexpr double kDefaultTextHeight = 250.0;
    static constexpr double kDefaultWidthFactor = 0.75;
    // The filing format this class writes; older ones lack the later fields.
    static constexpr Adesk::Int32 kCurrentVersion = 3;

    // Visible, empty, height 250, width factor 0.75, along the world X axis, no type, the
    // default style, layer and colour.
    TextLabel() = default;
    // Those five fields (a null text leaves the string empty) and no type; everything
    // else zero: the direction is the zero vector here, for the caller to set.
    TextLabel(const wchar_t* text, bool visible, double textHeight, double widthFactor,
              const AcDbObjectId& textStyleId);

    const AcString& GetString() const { return m_string; }
    void SetString(const AcString& text) { m_string = text; }
    // The middle-centre of the text.
    const AcGePoint3d& GetPos() const { return m_position; }
    void SetPos(const AcGePoint3d& position) { m_position = position; }
    // The reading direction; its angle in the XY plane is the text's rotation.
    const AcGeVector3d& GetDir() const { return m_direction; }
    void SetDir(const AcGeVector3d& direction) { m_direction = direction; }
    double GetTextHeight() const { return m_textHeight; }
    void SetTextHeight(double height) { m_textHeight = height; }
    double GetWidthFactor() const { return m_widthFactor; }
    void SetWidthFactor(double factor) { m_widthFactor = factor; }
    // Null: the drawing's default style (see CreateDbText).
    const AcDbObjectId& GetTextStyleId() const { return m_textStyleId; }
    void SetTextStyleId(const AcDbObjectId& id) { m_textStyleId = id; }
    // Null: the created text keeps the database's default layer.
    const AcDbObjectId& GetLayerId() const { return m_layerId; }
    void SetLayerId(const AcDbObjectId& id) { m_layerId = id; }
    TextLabelType GetType() const { return m_type; }
    void SetType(TextLabelType type) { m_type = type; }
    PredefinedTextPosition GetPredefinedPositionType() const { return m_predefinedPosition; }
    void SetPredefinedPositionType(PredefinedTextPosition position) { m_predefinedPosition = position; }
    TextDirectionMode GetDirectionMode() const { return m_directionMode; }
    void SetDirectionMode(TextDirectionMode mode) { m_directionMode = mode; }
    // Radians, used by kFixedAngle; stored as given.
    double GetFixedAngleRadians() const { return m_fixedAngle; }
    void SetFixedAngleRadians(double angle) { m_fixedAngle = angle; }
    bool IsVisible() const { return m_visible; }
    void SetVisible(bool visible) { m_visible = visible; }

    // The colour as the host's packed RGBM word; 0 is unset (the database's default).
    Adesk::UInt32 GetColorPacked() const { return m_color.GetPacked(); }
    void SetColorPacked(Adesk::UInt32 packed) { m_color = PackedColor(packed); }
    // The colour index (256 by layer, 0 by block, unset or a true colour); setting an
    // index outside 1..256 unsets the colour.
    int GetColorIndex() const { return m_color.ToColorIndex(); }
    void SetColorIndex(int index) { m_color = PackedColor::FromACI(index); }
    // The same as SetColorIndex.
    void SetColorByACI(int index) { SetColorIndex(index); }
    void SetColorByRGB(unsigned char r, unsigned char g, unsigned char b) { m_color = PackedColor::FromRGB(r, g, b); }
    // The host's default colour when unset.
    AcCmColor GetAcCmColor() const { return m_color.ToAcCmColor(); }

    // A new host text, in no database and owned by the caller, centred on the position;
    // null without a working database, with a height or width factor not greater than 0,
    // or with a position or direction that is not finite. The style is the label's when
    // it names a live record, else "_Standard", else the database's current style.
    AcDbText* CreateDbText() const;

    // Filing, version 3. Reading takes versions 1 and 2 (their missing fields get their
    // zero defaults) and any unknown version as 3. It answers false and leaves the label
    // as it was when the channel fails or a reserved count is negative or beyond reason;
    // over a drawing filer the filer's status then tells the owner.
    void DataOut(IDataIO* io) const;
    bool DataIn(IDataIO* io);

    // Field by field, numbers exactly.
    bool operator==(const TextLabel& other) const;
    bool operator!=(const TextLabel& other) const { return !(*this == other); }

private:
    bool m_visible = true;
    AcString m_string;
    double m_textHeight = kDefaultTextHeight;
    double m_widthFactor = kDefaultWidthFactor;
    AcDbObjectId m_textStyleId;
    AcGeVector3d m_direction = AcGeVector3d::kXAxis;
    TextLabelType m_type = TextLabelType::kUnknown;
    PredefinedTextPosition m_predefinedPosition = PredefinedTextPosition::kCenter;
    AcGePoint3d m_position = AcGePoint3d::kOrigin;
    AcDbObjectId m_layerId;
    PackedColor m_color;
    TextDirectionMode m_directionMode = TextDirectionMode::kAlongReference;
    double m_fixedAngle = 0.0;
};

std::ostream& operator<<(std::ostream& os, const TextLabel& label);

}  // namespace DbxPanel
