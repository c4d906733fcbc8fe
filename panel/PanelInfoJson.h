// PanelInfoJson: the reader, writer, comparison and printing that the panel's information
// records share. A record lists its keys once, in order, in a private VisitFields as member
// pointers (Field for plain values, RawObject / RawArray for nested JSON kept as text);
// every operation here walks that list.
#pragma once

#include <cstddef>
#include <ostream>
#include <utility>
#include <vector>

#include "AcString.h"
#include "data/JsonText.h"
#include "gevec2d.h"

namespace DbxPanel {

class PanelInfoJson {
public:
    // Reads json into record: on success every key of the record is taken from the text
    // (a missing or mistyped plain member gives the field's default) and record is
    // replaced; on failure record is untouched and errorMessage says why. blockName names
    // the block in the messages ("基础信息").
    template <typename Record>
    static bool Read(const AcString& json, const wchar_t* blockName, Record& record, AcString& errorMessage);

    // Writes record as one object with its keys in order. On failure json is untouched
    // and errorMessage says why (a NaN or infinite number, a raw member that is not valid
    // JSON of its kind).
    template <typename Record>
    static bool Write(const Record& record, const wchar_t* blockName, AcString& json, AcString& errorMessage);

    // Copies every plain member of object that has its field's type into record; the
    // other fields keep their values.
    template <typename Record>
    static void CopyTypedMembers(const JsonText::Value& object, Record& record);

    // Field by field, numbers exactly (so 0.0 equals -0.0 and NaN equals nothing).
    template <typename Record>
    static bool Equal(const Record& a, const Record& b);
    // "{key=value, ...}" for test failures.
    template <typename Record>
    static void Print(std::ostream& os, const Record& record);

private:
    enum class RawKind { kObject, kArray };

    // The block's messages; the basic block's wording is the pattern for every block.
    static AcString EmptyMessage(const wchar_t* blockName);
    static AcString NotAnObjectMessage(const wchar_t* blockName, std::size_t offset);
    static AcString RawTypeMessage(const wchar_t* key, RawKind kind);
    static AcString RawInvalidMessage(const wchar_t* key, RawKind kind, std::size_t offset);
    static AcString WriteFailedMessage(const wchar_t* blockName);
    static AcString RawWriteFailedMessage(const wchar_t* key);

    static bool IsOfKind(const JsonText::Value& value, RawKind kind);

    static void ReadTyped(const JsonText::Value& object, const wchar_t* key, AcString& out)
    {
        JsonText::GetString(object, key, out);
    }
    static void ReadTyped(const JsonText::Value& object, const wchar_t* key, int& out)
    {
        JsonText::GetInt(object, key, out);
    }
    static void ReadTyped(const JsonText::Value& object, const wchar_t* key, double& out)
    {
        JsonText::GetDouble(object, key, out);
    }
    static void ReadTyped(const JsonText::Value& object, const wchar_t* key, bool& out)
    {
        JsonText::GetBool(object, key, out);
    }
    static void ReadTyped(const JsonText::Value& object, const wchar_t* key, AcGeVector2d& out)
    {
        JsonText::GetVector2d(object, key, out);
    }
    static void ReadTyped(const JsonText::Value& object, const wchar_t* key, std::vector<AcString>& out)
    {
        JsonText::GetStringArray(object, key, out);
    }

    static JsonText::Value ToValue(const AcString& value, JsonText::Allocator& allocator)
    {
        return JsonText::String(value, allocator);
    }
    static JsonText::Value ToValue(int value, JsonText::Allocator&) { return JsonText::Value(value); }
    static JsonText::Value ToValue(double value, JsonText::Allocator&) { return JsonText::Value(value); }
    static JsonText::Value ToValue(bool value, JsonText::Allocator&) { return JsonText::Value(value); }
    static JsonText::Value ToValue(const AcGeVector2d& value, JsonText::Allocator& allocator)
    {
        return JsonText::Vector2d(value, allocator);
    }
    static JsonText::Value ToValue(const std::vector<AcString>& value, JsonText::Allocator& allocator)
    {
        return JsonText::StringArray(value, allocator);
    }

    template <typename T>
    static bool Same(const T& a, const T& b)
    {
        return a == b;
    }
    static bool Same(const AcGeVector2d& a, const AcGeVector2d& b) { return a.x == b.x && a.y == b.y; }

    static void PrintValue(std::ostream& os, const AcString& value) { os << '"' << value << '"'; }
    static void PrintValue(std::ostream& os, int value) { os << value; }
    static void PrintValue(std::ostream& os, double value) { os << value; }
    static void PrintValue(std::ostream& os, bool value) { os << (value ? "true" : "false"); }
    static void PrintValue(std::ostream& os, const AcGeVector2d& value) { os << value; }
    static void PrintValue(std::ostream& os, const std::vector<AcString>& value);

    // Step one of reading: each raw member must be null, absent or of its kind; it is
    // taken as its compact text.
    template <typename Record>
    struct RawReader {
        const JsonText::Value& object;
        Record& record;
        AcString& errorMessage;
        bool failed = false;

        template <typename T>
        void Field(const wchar_t*, T Record::*)
        {}
        void RawObject(const wchar_t* key, AcString Record::*field) { Raw(key, field, RawKind::kObject); }
        void RawArray(const wchar_t* key, AcString Record::*field) { Raw(key, field, RawKind::kArray); }
        void Raw(const wchar_t* key, AcString Record::*field, RawKind kind)
        {
            if (failed)
                return;
            const JsonText::Value* member = JsonText::Member(object, key);
            AcString text;
            if (member != nullptr && !member->IsNull()) {
                if (!IsOfKind(*member, kind)) {
                    errorMessage = RawTypeMessage(key, kind);
                    failed = true;
                    return;
                }
                // A parsed value holds no NaN, so this cannot fail; if it ever did, the
                // member would be lost, so it counts as a failure.
                if (!JsonText::Write(*member, text)) {
                    errorMessage = RawWriteFailedMessage(key);
                    failed = true;
                    return;
                }
            }
            record.*field = text;
        }
    };

    template <typename Record>
    struct TypedCopier {
        const JsonText::Value& object;
        Record& record;

        template <typename T>
        void Field(const wchar_t* key, T Record::*field)
        {
            ReadTyped(object, key, record.*field);
        }
        void RawObject(const wchar_t*, AcString Record::*) {}
        void RawArray(const wchar_t*, AcString Record::*) {}
    };

    template <typename Record>
    struct ObjectBuilder {
        const Record& record;
        JsonText::Document& document;
        AcString& errorMessage;
        bool failed = false;

        template <typename T>
        void Field(const wchar_t* key, T Record::*field)
        {
            JsonText::Allocator& allocator = document.GetAllocator();
            document.AddMember(JsonText::String(key, allocator), ToValue(record.*field, allocator), allocator);
        }
        void RawObject(const wchar_t* key, AcString Record::*field) { Raw(key, field, RawKind::kObject); }
        void RawArray(const wchar_t* key, AcString Record::*field) { Raw(key, field, RawKind::kArray); }
        // Raw text that does not hold a value of its kind is never dropped in silence: the
        // whole write fails instead.
        void Raw(const wchar_t* key, AcString Record::*field, RawKind kind)
        {
            if (failed)
                return;
            JsonText::Allocator& allocator = document.GetAllocator();
            JsonText::Value value;  // null
            const AcString& text = record.*field;
            if (!text.isEmpty()) {
                JsonText::Document nested;
                std::size_t offset = 0;
                if (!JsonText::Parse(text, nested, offset)) {
                    errorMessage = RawInvalidMessage(key, kind, offset);
                    failed = true;
                    return;
                }
                if (!nested.IsNull() && !IsOfKind(nested, kind)) {
                    errorMessage = RawWriteFailedMessage(key);
                    failed = true;
                    return;
                }
                value.CopyFrom(nested, allocator);
            }
            document.AddMember(JsonText::String(key, allocator), value, allocator);
        }
    };

    template <typename Record>
    struct Comparer {
        const Record& a;
        const Record& b;
        bool equal = true;

        template <typename T>
        void Field(const wchar_t*, T Record::*field)
        {
            equal = equal && Same(a.*field, b.*field);
        }
        void RawObject(const wchar_t* key, AcString Record::*field) { Field(key, field); }
        void RawArray(const wchar_t* key, AcString Record::*field) { Field(key, field); }
    };

    template <typename Record>
    struct Printer {
        std::ostream& os;
        const Record& record;
        const char* separator = "";

        template <typename T>
        void Field(const wchar_t* key, T Record::*field)
        {
            os << separator << AcString(key) << '=';
            PrintValue(os, record.*field);
            separator = ", ";
        }
        void RawObject(const wchar_t* key, AcString Record::*field) { Field(key, field); }
        void RawArray(const wchar_t* key, AcString Record::*field) { Field(key, field); }
    };
};

template <typename Record>
bool PanelInfoJson::Read(const AcString& json, const wchar_t* blockName, Record& record, AcString& errorMessage)
{
    if (json.isEmpty()) {
        errorMessage = EmptyMessage(blockName);
        return false;
    }
    JsonText::Document document;
    std::size_t offset = 0;
    if (!JsonText::Parse(json, document, offset) || !document.IsObject()) {
        errorMessage = NotAnObjectMessage(blockName, offset);
        return false;
    }
    Record read;  // every field at its default
    RawReader<Record> raw{document, read, errorMessage};
    Record::VisitFields(raw);
    if (raw.failed)
        return false;
    CopyTypedMembers(document, read);
    record = std::move(read);
    return true;
}

template <typename Record>
bool PanelInfoJson::Write(const Record& record, const wchar_t* blockName, AcString& json, AcString& errorMessage)
{
    JsonText::Document document(rapidjson::kObjectType);
    ObjectBuilder<Record> builder{record, document, errorMessage};
    Record::VisitFields(builder);
    if (builder.failed)
        return false;
    AcString text;
    if (!JsonText::Write(document, text)) {
        errorMessage = WriteFailedMessage(blockName);
        return false;
    }
    json = text;
    return true;
}

template <typename Record>
void PanelInfoJson::CopyTypedMembers(const JsonText::Value& object, Record& record)
{
    TypedCopier<Record> copier{object, record};
    Record::VisitFields(copier);
}

template <typename Record>
bool PanelInfoJson::Equal(const Record& a, const Record& b)
{
    Comparer<Record> comparer{a, b};
    Record::VisitFields(comparer);
    return comparer.equal;
}

template <typename Record>
void PanelInfoJson::Print(std::ostream& os, const Record& record)
{
    Printer<Record> printer{os, record};
    os << '{';
    Record::VisitFields(printer);
    os << '}';
}

}  // namespace DbxPanel
