// JsonObjectReader: typed, range-checked members of a layout description's objects.
#include "JsonObjectReader.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>

#include "headless/TextCodec.h"

namespace quarvo {
namespace {

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

std::string NamesOf(const std::vector<std::pair<const char*, int>>& choices)
{
    std::string names;
    for (const auto& choice : choices)
        names += (names.empty() ? "" : ", ") + Quoted(choice.first);
    return names;
}

}  // namespace

JsonObjectReader::JsonObjectReader(const rapidjson::Value& value, std::string path)
    : m_object(value), m_path(std::move(path))
{
    if (!value.IsObject())
        throw LayoutError(m_path, "must be an object");
    // JSON leaves a repeated member to the reader; a description must not depend on which wins.
    std::set<std::string> names;
    for (const auto& member : value.GetObject()) {
        if (!names.insert(std::string(member.name.GetString(), member.name.GetStringLength())).second)
            throw LayoutError(m_path, "member " + Quoted(member.name.GetString()) + " is given twice");
    }
}

std::string JsonObjectReader::PathOf(const char* key) const
{
    return m_path.empty() ? std::string(key) : m_path + "." + key;
}

bool JsonObjectReader::Has(const char* key) const
{
    return m_object.HasMember(key);
}

const rapidjson::Value* JsonObjectReader::Member(const char* key)
{
    m_asked.insert(key);
    const auto found = m_object.FindMember(key);
    return found == m_object.MemberEnd() ? nullptr : &found->value;
}

double JsonObjectReader::NumberAt(const rapidjson::Value& value, const std::string& path) const
{
    if (!value.IsNumber())
        throw LayoutError(path, "must be a number");
    const double number = value.GetDouble();
    if (!std::isfinite(number) || std::fabs(number) > kMaxCoordinate)
        throw LayoutError(path, "must lie within ±1e9");
    return number;
}

double JsonObjectReader::Number(const char* key, double fallback)
{
    const rapidjson::Value* value = Member(key);
    return value == nullptr ? fallback : NumberAt(*value, PathOf(key));
}

double JsonObjectReader::RequiredNumber(const char* key)
{
    if (!Has(key))
        throw LayoutError(m_path, "needs " + Quoted(key));
    return Number(key, 0.0);
}

double JsonObjectReader::PositiveNumber(const char* key, double fallback)
{
    const double number = Number(key, fallback);
    if (Has(key) && number <= 0.0)
        throw LayoutError(PathOf(key), "must be greater than 0");
    return number;
}

double JsonObjectReader::RequiredPositiveNumber(const char* key)
{
    if (!Has(key))
        throw LayoutError(m_path, "needs " + Quoted(key));
    return PositiveNumber(key, 0.0);
}

int JsonObjectReader::Integer(const char* key, int fallback, int min, int max)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        return fallback;
    if (!value->IsInt())
        throw LayoutError(PathOf(key), "must be a whole number");
    const int number = value->GetInt();
    if (number < min || number > max)
        throw LayoutError(PathOf(key),
                          min == max ? "must be " + std::to_string(min)
                                     : "must be " + std::to_string(min) + " to " + std::to_string(max));
    return number;
}

bool JsonObjectReader::Bool(const char* key, bool fallback)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        return fallback;
    if (!value->IsBool())
        throw LayoutError(PathOf(key), "must be true or false");
    return value->GetBool();
}

std::wstring JsonObjectReader::String(const char* key, const std::wstring& fallback)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        return fallback;
    if (!value->IsString())
        throw LayoutError(PathOf(key), "must be a string");
    return headless::fromUtf8(std::string(value->GetString(), value->GetStringLength()));
}

AcGePoint3d JsonObjectReader::Point(const char* key, const AcGePoint3d& fallback)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        return fallback;
    const LayoutVertex vertex = VertexAt(*value, PathOf(key), "point");
    if (value->HasMember("bulge"))
        throw LayoutError(PathOf(key), "a point has no bulge");
    return AcGePoint3d(vertex.x, vertex.y, 0.0);
}

AcGePoint3d JsonObjectReader::RequiredPoint(const char* key)
{
    if (!Has(key))
        throw LayoutError(m_path, "needs " + Quoted(key));
    return Point(key, AcGePoint3d::kOrigin);
}

AcGeVector3d JsonObjectReader::Direction(const char* key, const AcGeVector3d& fallback)
{
    if (!Has(key)) {
        Member(key);
        return fallback;
    }
    const AcGePoint3d point = Point(key, AcGePoint3d::kOrigin);
    const AcGeVector3d direction = point.asVector();
    if (direction.length() < 1e-9)
        throw LayoutError(PathOf(key), "a direction needs a length");
    return direction.normal();
}

int JsonObjectReader::ColorIndex(const char* key, int fallback)
{
    return Integer(key, fallback, 0, 256);
}

int JsonObjectReader::Choice(const char* key, const std::vector<std::pair<const char*, int>>& choices, int fallback)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        return fallback;
    if (value->IsString()) {
        for (const auto& choice : choices) {
            if (choice.first == std::string(value->GetString(), value->GetStringLength()))
                return choice.second;
        }
    }
    throw LayoutError(PathOf(key), "must be one of " + NamesOf(choices));
}

int JsonObjectReader::Flags(const char* key, const std::vector<std::pair<const char*, int>>& flags, int fallback)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        return fallback;
    if (!value->IsArray())
        throw LayoutError(PathOf(key), "must be an array of " + NamesOf(flags));
    int bits = 0;
    for (rapidjson::SizeType i = 0; i < value->Size(); ++i) {
        const rapidjson::Value& item = (*value)[i];
        const std::string path = PathOf(key) + "[" + std::to_string(i) + "]";
        bool known = false;
        for (const auto& flag : flags) {
            if (item.IsString() && flag.first == std::string(item.GetString(), item.GetStringLength())) {
                bits |= flag.second;
                known = true;
            }
        }
        if (!known)
            throw LayoutError(path, "must be one of " + NamesOf(flags));
    }
    return bits;
}

LayoutVertex JsonObjectReader::VertexAt(const rapidjson::Value& value, const std::string& path, const char* what) const
{
    if (!value.IsObject() || !value.HasMember("x") || !value.HasMember("y"))
        throw LayoutError(path, std::string("a ") + what + " needs x and y");
    LayoutVertex vertex;
    for (const auto& member : value.GetObject()) {
        const std::string name(member.name.GetString(), member.name.GetStringLength());
        const std::string at = path + "." + name;
        if (name == "x")
            vertex.x = NumberAt(member.value, at);
        else if (name == "y")
            vertex.y = NumberAt(member.value, at);
        else if (name == "bulge")
            vertex.bulge = NumberAt(member.value, at);
        else
            throw LayoutError(path, "unknown member " + Quoted(name) + " (a " + what + " has x, y and bulge)");
    }
    return vertex;
}

std::vector<LayoutVertex> JsonObjectReader::VertexList(const rapidjson::Value& value, const std::string& path,
                                                       std::size_t minCount) const
{
    if (!value.IsArray())
        throw LayoutError(path, "must be an array of vertices");
    if (value.Size() < minCount)
        throw LayoutError(path, "needs at least " + std::to_string(minCount) + " vertices");
    if (value.Size() > kMaxVertices)
        throw LayoutError(path, "has more than " + std::to_string(kMaxVertices) + " vertices");
    std::vector<LayoutVertex> vertices;
    for (rapidjson::SizeType i = 0; i < value.Size(); ++i)
        vertices.push_back(VertexAt(value[i], path + "[" + std::to_string(i) + "]", "vertex"));
    return vertices;
}

std::vector<LayoutVertex> JsonObjectReader::Vertices(const char* key, std::size_t minCount)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        throw LayoutError(m_path, "needs " + Quoted(key));
    return VertexList(*value, PathOf(key), minCount);
}

std::vector<std::vector<LayoutVertex>> JsonObjectReader::Loops(const char* key)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr)
        throw LayoutError(m_path, "needs " + Quoted(key));
    if (!value->IsArray() || value->Empty())
        throw LayoutError(PathOf(key), "must be an array of loops, the outline first");
    std::vector<std::vector<LayoutVertex>> loops;
    for (rapidjson::SizeType i = 0; i < value->Size(); ++i)
        loops.push_back(VertexList((*value)[i], PathOf(key) + "[" + std::to_string(i) + "]", 3));
    return loops;
}

std::wstring JsonObjectReader::InformationBlock(const char* key)
{
    const rapidjson::Value* value = Member(key);
    if (value == nullptr || value->IsNull())
        return std::wstring();
    if (value->IsString())
        return headless::fromUtf8(std::string(value->GetString(), value->GetStringLength()));
    if (!value->IsObject() && !value->IsArray())
        throw LayoutError(PathOf(key), "must be a JSON object, an array or a string");
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    value->Accept(writer);
    return headless::fromUtf8(std::string(buffer.GetString(), buffer.GetSize()));
}

const rapidjson::Value* JsonObjectReader::Object(const char* key)
{
    const rapidjson::Value* value = Member(key);
    if (value != nullptr && !value->IsObject())
        throw LayoutError(PathOf(key), "must be an object");
    return value;
}

const rapidjson::Value* JsonObjectReader::Array(const char* key)
{
    const rapidjson::Value* value = Member(key);
    if (value != nullptr && !value->IsArray())
        throw LayoutError(PathOf(key), "must be an array");
    return value;
}

void JsonObjectReader::Finish() const
{
    for (const auto& member : m_object.GetObject()) {
        const std::string name(member.name.GetString(), member.name.GetStringLength());
        if (m_asked.count(name) == 0)
            throw LayoutError(m_path, "unknown member " + Quoted(name));
    }
}

int JsonObjectReader::Depth(const rapidjson::Value& value)
{
    int deepest = 0;
    std::vector<std::pair<const rapidjson::Value*, int>> pending{{&value, 1}};
    while (!pending.empty()) {
        const auto [item, depth] = pending.back();
        pending.pop_back();
        deepest = std::max(deepest, depth);
        if (item->IsArray()) {
            for (const rapidjson::Value& child : item->GetArray())
                pending.push_back({&child, depth + 1});
        } else if (item->IsObject()) {
            for (const auto& member : item->GetObject())
                pending.push_back({&member.value, depth + 1});
        }
    }
    return deepest;
}

}  // namespace quarvo
