// A layout description's label made into the module's text label.
#include "LayoutLabelReader.h"

namespace quarvo {
namespace {

// The positions a label's owner knows how to place it at; -1 keeps "position".
bool IsPredefinedPosition(int value)
{
    return value == -1 || (value >= 0 && value <= 8) || value == 20 || value == 21 || (value >= 30 && value <= 33);
}

}  // namespace

DbxPanel::TextLabel ReadTextLabel(JsonObjectReader& label, const LayoutContext& context, bool typeRequired,
                                  const AcDbObjectId& ownerLayer)
{
    using DbxPanel::TextLabelType;
    DbxPanel::TextLabel result;
    if (typeRequired && !label.Has("type"))
        throw LayoutError(label.path(), "needs \"type\"");
    if (label.Has("type"))
        result.SetType(static_cast<TextLabelType>(label.Integer("type", 0, 0, 13)));
    result.SetString(AcString(label.String("text", L"")));
    result.SetVisible(label.Bool("visible", true));
    result.SetTextHeight(label.PositiveNumber("height", DbxPanel::TextLabel::kDefaultTextHeight));
    result.SetWidthFactor(label.PositiveNumber("widthFactor", DbxPanel::TextLabel::kDefaultWidthFactor));
    result.SetPos(label.Point("position", result.GetPos()));
    const int position = label.Integer("predefinedPosition", 0, -1, 33);
    if (!IsPredefinedPosition(position))
        throw LayoutError(label.PathOf("predefinedPosition"), "must be -1, 0 to 8, 20, 21 or 30 to 33");
    result.SetPredefinedPositionType(static_cast<DbxPanel::PredefinedTextPosition>(position));
    result.SetDirectionMode(static_cast<DbxPanel::TextDirectionMode>(
        label.Choice("directionMode",
                     {{"reference", static_cast<int>(DbxPanel::TextDirectionMode::kAlongReference)},
                      {"perpendicular", static_cast<int>(DbxPanel::TextDirectionMode::kPerpendicular)},
                      {"fixed", static_cast<int>(DbxPanel::TextDirectionMode::kFixedAngle)}},
                     static_cast<int>(DbxPanel::TextDirectionMode::kAlongReference))));
    result.SetFixedAngleRadians(label.Number("fixedAngle", 0.0));
    result.SetDir(label.Direction("direction", AcGeVector3d::kXAxis));
    const std::wstring layer = context.LayerReference(label, "layer");
    result.SetLayerId(layer.empty() ? ownerLayer : context.LayerId(layer));
    if (label.Has("color"))
        result.SetColorIndex(label.ColorIndex("color", 256));
    return result;
}

}  // namespace quarvo
