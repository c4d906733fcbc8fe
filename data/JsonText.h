// JsonText: the module's one door to RapidJSON, for the JSON information blocks of panels
// and lines. JSON text lives in wide strings; the document model works in the Unicode form
// of wchar_t's width, so text passes in and out without conversion.
#pragma once

#include <cstddef>
#include <cwchar>
#include <vector>

#include <rapidjson/document.h>

#include "AcString.h"
#include "gevec2d.h"

class JsonText {
public:
    // UTF-32 where wchar_t has four bytes (Linux), UTF-16 where it has two (Windows).
#if WCHAR_MAX > 0xFFFF
    using Encoding = rapidjson::UTF32<wchar_t>;
#else
    using Encoding = rapidjson::UTF16<wchar_t>;
#endif
    using Document = rapidjson::GenericDocument<Encoding>;
    using Value = rapidjson::GenericValue<Encoding>;
    using Allocator = Document::AllocatorType;

    // Parses text (numbers exactly, strings validated; iterative, so deep nesting costs heap,
    // never the call stack) into document, replacing what it held. On failure answers false,
    // leaves document as it was and sets errorOffset to the character where the parser
    // stopped.
    static bool Parse(const AcString& text, Document& document, std::size_t& errorOffset);
    // Compact text of value. False, text untouched, when a number is NaN or infinite.
    static bool Write(const Value& value, AcString& text);

    // The member named key of object; null when object is not an object or lacks it.
    static const Value* Member(const Value& object, const wchar_t* key);
    // Typed member tests: each copies the member of object named key into out and answers
    // true only when it is there with that type; otherwise out stays as it was.
    static bool GetString(const Value& object, const wchar_t* key, AcString& out);
    // A JSON integer within 32 bits; 1.0 or 3000000000 do not count.
    static bool GetInt(const Value& object, const wchar_t* key, int& out);
    // Any JSON number.
    static bool GetDouble(const Value& object, const wchar_t* key, double& out);
    static bool GetBool(const Value& object, const wchar_t* key, bool& out);
    // An array of exactly two numbers, [x, y].
    static bool GetVector2d(const Value& object, const wchar_t* key, AcGeVector2d& out);
    // An array whose every element is a string.
    static bool GetStringArray(const Value& object, const wchar_t* key, std::vector<AcString>& out);

    // Values to build documents from; text is copied into allocator.
    static Value String(const AcString& text, Allocator& allocator);
    static Value Vector2d(const AcGeVector2d& vector, Allocator& allocator);
    static Value StringArray(const std::vector<AcString>& texts, Allocator& allocator);
};
