// PanelShapeInfo: the panel's shape block: its shape kind (0 an ordinary panel, 1 and 2 the
// corner kinds), position, corner angle, notch type, its own handle and the handles of
// its corner group, as a typed record read from and written to the block's JSON text.
#pragma once

#include <iosfwd>
#include <vector>

#include "AcString.h"

namespace DbxPanel {

class PanelShapeInfo {
public:
    // Every field at its default: numbers 0, no handles.
    PanelShapeInfo() = default;

    // On success replaces this record with the text's (missing or mistyped members take
    // their defaults); on failure leaves it untouched and says why in errorMessage.
    bool FromJson(const AcString& json, AcString& errorMessage);
    // One object with every key in order; on failure json is untouched and errorMessage
    // says why.
    bool ToJson(AcString& json, AcString& errorMessage) const;

    int GetShapeType() const { return m_shapeType; }
    void SetShapeType(int value) { m_shapeType = value; }
    int GetPosition() const { return m_position; }
    void SetPosition(int value) { m_position = value; }
    int GetCornerPanelAngle() const { return m_cornerPanelAngle; }
    void SetCornerPanelAngle(int value) { m_cornerPanelAngle = value; }
    int GetZiMuKouType() const { return m_ziMuKouType; }
    void SetZiMuKouType(int value) { m_ziMuKouType = value; }
    // The handle of the panel this record describes.
    const AcString& GetHandle() const { return m_handle; }
    void SetHandle(const AcString& value) { m_handle = value; }
    // The handles of the other panels of the corner group; the text must hold an array of
    // strings only, anything else reads as no members.
    const std::vector<AcString>& GetRelatedPanelHandles() const { return m_relatedPanelHandles; }
    void SetRelatedPanelHandles(const std::vector<AcString>& value) { m_relatedPanelHandles = value; }

    bool operator==(const PanelShapeInfo& other) const;
    bool operator!=(const PanelShapeInfo& other) const { return !(*this == other); }

private:
    friend class PanelInfoJson;

    template <typename Visitor>
    static void VisitFields(Visitor& visit)
    {
        visit.Field(L"shapeType", &PanelShapeInfo::m_shapeType);
        visit.Field(L"position", &PanelShapeInfo::m_position);
        visit.Field(L"cornerPanelAngle", &PanelShapeInfo::m_cornerPanelAngle);
        visit.Field(L"ziMuKouType", &PanelShapeInfo::m_ziMuKouType);
        visit.Field(L"handle", &PanelShapeInfo::m_handle);
        visit.Field(L"relatedPanelHandles", &PanelShapeInfo::m_relatedPanelHandles);
    }

    int m_shapeType = 0;
    int m_position = 0;
    int m_cornerPanelAngle = 0;
    int m_ziMuKouType = 0;
    AcString m_handle;
    std::vector<AcString> m_relatedPanelHandles;
};

std::ostream& operator<<(std::ostream& os, const PanelShapeInfo& info);

}  // namespace DbxPanel
