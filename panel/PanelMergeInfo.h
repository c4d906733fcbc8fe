// PanelMergeInfo: the panel's merge block: the merge direction, the panel's own handle and
// place in its merge group, the handles of the other members, and the merged size, as a
// typed record read from and written to the block's JSON text.
#pragma once

#include <iosfwd>
#include <vector>

#include "AcString.h"

namespace DbxPanel {

class PanelMergeInfo {
public:
    // Every field at its default: direction and sequence 0, no handles, sizes 0.
    PanelMergeInfo() = default;

    // On success replaces this record with the text's (missing or mistyped members take
    // their defaults); on failure leaves it untouched and says why in errorMessage.
    bool FromJson(const AcString& json, AcString& errorMessage);
    // One object with every key in order; on failure (a NaN or infinite size) json is
    // untouched and errorMessage says why.
    bool ToJson(AcString& json, AcString& errorMessage) const;

    int GetDirection() const { return m_direction; }
    void SetDirection(int value) { m_direction = value; }
    // The handle of the panel this record describes.
    const AcString& GetHandle() const { return m_handle; }
    void SetHandle(const AcString& value) { m_handle = value; }
    int GetSequenceNumber() const { return m_sequenceNumber; }
    void SetSequenceNumber(int value) { m_sequenceNumber = value; }
    // The handles of the other panels merged with this one; the text must hold an array
    // of strings only, anything else reads as no members.
    const std::vector<AcString>& GetRelatedPanelHandles() const { return m_relatedPanelHandles; }
    void SetRelatedPanelHandles(const std::vector<AcString>& value) { m_relatedPanelHandles = value; }
    double GetMergedLength() const { return m_mergedLength; }
    void SetMergedLength(double value) { m_mergedLength = value; }
    double GetMergedWidth() const { return m_mergedWidth; }
    void SetMergedWidth(double value) { m_mergedWidth = value; }

    bool operator==(const PanelMergeInfo& other) const;
    bool operator!=(const PanelMergeInfo& other) const { return !(*this == other); }

private:
    friend class PanelInfoJson;

    template <typename Visitor>
    static void VisitFields(Visitor& visit)
    {
        visit.Field(L"direction", &PanelMergeInfo::m_direction);
        visit.Field(L"handle", &PanelMergeInfo::m_handle);
        visit.Field(L"sequenceNumber", &PanelMergeInfo::m_sequenceNumber);
        visit.Field(L"relatedPanelHandles", &PanelMergeInfo::m_relatedPanelHandles);
        visit.Field(L"mergedLength", &PanelMergeInfo::m_mergedLength);
        visit.Field(L"mergedWidth", &PanelMergeInfo::m_mergedWidth);
    }

    int m_direction = 0;
    AcString m_handle;
    int m_sequenceNumber = 0;
    std::vector<AcString> m_relatedPanelHandles;
    double m_mergedLength = 0.0;
    double m_mergedWidth = 0.0;
};

std::ostream& operator<<(std::ostream& os, const PanelMergeInfo& info);

}  // namespace DbxPanel
