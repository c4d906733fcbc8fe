// JsonText: parsing, writing and typed member tests over RapidJSON's document model.
#include "JsonText.h"

#include <string>
#include <utility>

#include "Qx/JsonExactParse.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace {

// Iterative: a hostile "[[[[..." must not exhaust the call stack. Validated: text that is not
// Unicode is refused. Numbers are converted exactly (JsonExactParse), so a number written by
// Write reads back bit for bit.
constexpr unsigned kParseFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;

// The member named key when it passes isType, read with take.
template <typename T, typename Test, typename Take>
bool TakeMember(const JsonText::Value& object, const wchar_t* key, T& out, Test isType, Take take)
{
    const JsonText::Value* member = JsonText::Member(object, key);
    if (member == nullptr || !(member->*isType)())
        return false;
    out = (member->*take)();
    return true;
}

}  // namespace

bool JsonText::Parse(const AcString& text, Document& document, std::size_t& errorOffset)
{
    rapidjson::GenericStringStream<Encoding> stream(text.kwszPtr());
    const rapidjson::ParseResult result = Qx::JsonExactParse::Parse<kParseFlags>(document, stream, text.kwszPtr());
    if (result.IsError()) {
        errorOffset = result.Offset();
        return false;
    }
    return true;
}

bool JsonText::Write(const Value& value, AcString& text)
{
    rapidjson::GenericStringBuffer<Encoding> buffer;
    // The writer's default flags refuse NaN and infinities, which JSON cannot express.
    rapidjson::Writer<rapidjson::GenericStringBuffer<Encoding>, Encoding, Encoding> writer(buffer);
    if (!value.Accept(writer) || !writer.IsComplete())
        return false;
    text = AcString(buffer.GetString(), static_cast<int>(buffer.GetSize() / sizeof(wchar_t)));
    return true;
}

const JsonText::Value* JsonText::Member(const Value& object, const wchar_t* key)
{
    if (!object.IsObject() || key == nullptr)
        return nullptr;
    const auto found = object.FindMember(key);
    return found != object.MemberEnd() ? &found->value : nullptr;
}

bool JsonText::GetString(const Value& object, const wchar_t* key, AcString& out)
{
    const Value* member = Member(object, key);
    if (member == nullptr || !member->IsString())
        return false;
    out = AcString(member->GetString(), static_cast<int>(member->GetStringLength()));
    return true;
}

bool JsonText::GetInt(const Value& object, const wchar_t* key, int& out)
{
    return TakeMember(object, key, out, &Value::IsInt, &Value::GetInt);
}

bool JsonText::GetDouble(const Value& object, const wchar_t* key, double& out)
{
    return TakeMember(object, key, out, &Value::IsNumber, &Value::GetDouble);
}

bool JsonText::GetBool(const Value& object, const wchar_t* key, bool& out)
{
    return TakeMember(object, key, out, &Value::IsBool, &Value::GetBool);
}

bool JsonText::GetVector2d(const Value& object, const wchar_t* key, AcGeVector2d& out)
{
    const Value* member = Member(object, key);
    if (member == nullptr || !member->IsArray() || member->Size() != 2)
        return false;
    const Value& x = (*member)[0];
    const Value& y = (*member)[1];
    if (!x.IsNumber() || !y.IsNumber())
        return false;
    out = AcGeVector2d(x.GetDouble(), y.GetDouble());
    return true;
}

bool JsonText::GetStringArray(const Value& object, const wchar_t* key, std::vector<AcString>& out)
{
    const Value* member = Member(object, key);
    if (member == nullptr || !member->IsArray())
        return false;
    std::vector<AcString> texts;
    texts.reserve(member->Size());
    for (const Value& element : member->GetArray()) {
        if (!element.IsString())
            return false;
        texts.emplace_back(element.GetString(), static_cast<int>(element.GetStringLength()));
    }
    out = std::move(texts);
    return true;
}

JsonText::Value JsonText::String(const AcString& text, Allocator& allocator)
{
    return Value(text.kwszPtr(), static_cast<rapidjson::SizeType>(text.length()), allocator);
}

JsonText::Value JsonText::Vector2d(const AcGeVector2d& vector, Allocator& allocator)
{
    Value array(rapidjson::kArrayType);
    array.PushBack(vector.x, allocator);
    array.PushBack(vector.y, allocator);
    return array;
}

JsonText::Value JsonText::StringArray(const std::vector<AcString>& texts, Allocator& allocator)
{
    Value array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(texts.size()), allocator);
    for (const AcString& text : texts)
        array.PushBack(String(text, allocator), allocator);
    return array;
}
