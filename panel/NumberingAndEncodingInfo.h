// NumberingAndEncodingInfo: the panel's numbering and encoding block (whether it is
// numbered, its display number, and the prefixes, sequence and suffixes it is composed of)
// as a typed record, read from and written to the block's JSON text.
#pragma once

#include <iosfwd>

#include "AcString.h"

namespace DbxPanel {

class NumberingAndEncodingInfo {
public:
    static constexpr int kCustomPrefixCount = 5;

    // Every field at its default: not numbered, texts empty, sequence 0.
    NumberingAndEncodingInfo() = default;

    // On success replaces this record with the text's (missing or mistyped members take
    // their defaults); on failure leaves it untouched and says why in errorMessage.
    bool FromJson(const AcString& json, AcString& errorMessage);
    // One object with every key in order; on failure json is untouched and errorMessage
    // says why.
    bool ToJson(AcString& json, AcString& errorMessage) const;

    bool IsNumbered() const { return m_isNumbered; }
    void SetNumbered(bool value) { m_isNumbered = value; }
    const AcString& GetFinalDisplayNumber() const { return m_finalDisplayNumber; }
    void SetFinalDisplayNumber(const AcString& value) { m_finalDisplayNumber = value; }
    int GetSequence() const { return m_sequence; }
    void SetSequence(int value) { m_sequence = value; }
    // Prefix n of "customPrefix_1" .. "customPrefix_5"; another n reads empty and is not
    // stored.
    const AcString& GetCustomPrefix(int n) const;
    void SetCustomPrefix(int n, const AcString& value);
    const AcString& GetShapeSuffix() const { return m_shapeSuffix; }
    void SetShapeSuffix(const AcString& value) { m_shapeSuffix = value; }
    const AcString& GetDrawingNumSuffix() const { return m_drawingNumSuffix; }
    void SetDrawingNumSuffix(const AcString& value) { m_drawingNumSuffix = value; }
    const AcString& GetMergeSuffix() const { return m_mergeSuffix; }
    void SetMergeSuffix(const AcString& value) { m_mergeSuffix = value; }
    const AcString& GetCustomSuffix() const { return m_customSuffix; }
    void SetCustomSuffix(const AcString& value) { m_customSuffix = value; }

    bool operator==(const NumberingAndEncodingInfo& other) const;
    bool operator!=(const NumberingAndEncodingInfo& other) const { return !(*this == other); }

private:
    friend class PanelInfoJson;

    template <typename Visitor>
    static void VisitFields(Visitor& visit)
    {
        visit.Field(L"isNumbered", &NumberingAndEncodingInfo::m_isNumbered);
        visit.Field(L"finalDisplayNumber", &NumberingAndEncodingInfo::m_finalDisplayNumber);
        visit.Field(L"sequence", &NumberingAndEncodingInfo::m_sequence);
        visit.Field(L"customPrefix_1", &NumberingAndEncodingInfo::m_customPrefix1);
        visit.Field(L"customPrefix_2", &NumberingAndEncodingInfo::m_customPrefix2);
        visit.Field(L"customPrefix_3", &NumberingAndEncodingInfo::m_customPrefix3);
        visit.Field(L"customPrefix_4", &NumberingAndEncodingInfo::m_customPrefix4);
        visit.Field(L"customPrefix_5", &NumberingAndEncodingInfo::m_customPrefix5);
        visit.Field(L"shapeSuffix", &NumberingAndEncodingInfo::m_shapeSuffix);
        visit.Field(L"drawingNumSuffix", &NumberingAndEncodingInfo::m_drawingNumSuffix);
        visit.Field(L"mergeSuffix", &NumberingAndEncodingInfo::m_mergeSuffix);
        visit.Field(L"customSuffix", &NumberingAndEncodingInfo::m_customSuffix);
    }

    AcString NumberingAndEncodingInfo::*CustomPrefixField(int n) const;

    bool m_isNumbered = false;
    AcString m_finalDisplayNumber;
    int m_sequence = 0;
    AcString m_customPrefix1;
    AcString m_customPrefix2;
    AcString m_customPrefix3;
    AcString m_customPrefix4;
    AcString m_customPrefix5;
    AcString m_shapeSuffix;
    AcString m_drawingNumSuffix;
    AcString m_mergeSuffix;
    AcString m_customSuffix;
};

std::ostream& operator<<(std::ostream& os, const NumberingAndEncodingInfo& info);

}  // namespace DbxPanel
