// JsonObjectReader: reads one object of a layout description, knowing where it stands in
// the document ("panels[3].loops[0][2]"), so that every refusal names its place. Each
// accessor checks the member's type and range; Finish refuses members nobody asked for,
// so that a misspelt key is an error rather than a silent default.
#pragma once

#include <rapidjson/document.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ToolError.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace quarvo {

// A refused description: "<path>: <reason>".
class LayoutError : public ToolError {
public:
    LayoutError(const std::string& path, const std::string& reason)
        : ToolError((path.empty() ? std::string("the layout") : path) + ": " + reason)
    {}
};

// A vertex of a loop or of a polyline-like entity: point and bulge of the segment it starts.
struct LayoutVertex {
    double x = 0.0;
    double y = 0.0;
    double bulge = 0.0;
};

class JsonObjectReader {
public:
    // LayoutError at path unless value is an object.
    JsonObjectReader(const rapidjson::Value& value, std::string path);

    const std::string& path() const { return m_path; }
    std::string PathOf(const char* key) const;
    bool Has(const char* key) const;

    // Numbers: finite, within ±kMaxCoordinate for coordinates and sizes.
    double Number(const char* key, double fallback);
    double RequiredNumber(const char* key);
    // A number greater than 0.
    double PositiveNumber(const char* key, double fallback);
    double RequiredPositiveNumber(const char* key);
    int Integer(const char* key, int fallback, int min, int max);
    bool Bool(const char* key, bool fallback);
    std::wstring String(const char* key, const std::wstring& fallback);
    // {"x": ..., "y": ...}; z is 0.
    AcGePoint3d Point(const char* key, const AcGePoint3d& fallback);
    AcGePoint3d RequiredPoint(const char* key);
    // {"x": ..., "y": ...} of non-zero length.
    AcGeVector3d Direction(const char* key, const AcGeVector3d& fallback);
    // A colour index 0..256 (0 by block, 256 by layer).
    int ColorIndex(const char* key, int fallback);
    // One name of choices, answering its value.
    int Choice(const char* key, const std::vector<std::pair<const char*, int>>& choices, int fallback);
    // An array of names of flags, answering the bits together; the fallback when absent.
    int Flags(const char* key, const std::vector<std::pair<const char*, int>>& flags, int fallback);
    // [{"x", "y", "bulge"}...] with at least minCount vertices.
    std::vector<LayoutVertex> Vertices(const char* key, std::size_t minCount);
    // [[vertex...], ...]: at least one loop, each of at least 3 vertices.
    std::vector<std::vector<LayoutVertex>> Loops(const char* key);
    // An information block: a JSON object or array stored as its compact text, or a string
    // stored as given (text that is serialised already); empty when absent.
    std::wstring InformationBlock(const char* key);
    // A nested object, or null when absent.
    const rapidjson::Value* Object(const char* key);
    // The member as it stands, whatever its type, or null when absent.
    const rapidjson::Value* Any(const char* key) { return Member(key); }
    // A nested array, or null when absent.
    const rapidjson::Value* Array(const char* key);

    // LayoutError naming the first member no accessor asked for.
    void Finish() const;

    // Coordinates and sizes beyond this are refused: no roof is that large, and geometry
    // that far out loses its precision.
    static constexpr double kMaxCoordinate = 1e9;
    // The most vertices one loop or line may have.
    static constexpr std::size_t kMaxVertices = 100000;

    // The nesting depth of value, measured without recursion.
    static int Depth(const rapidjson::Value& value);

private:
    const rapidjson::Value* Member(const char* key);
    double NumberAt(const rapidjson::Value& value, const std::string& path) const;
    // what: "vertex" or "point", as the refusals call it.
    LayoutVertex VertexAt(const rapidjson::Value& value, const std::string& path, const char* what) const;
    std::vector<LayoutVertex> VertexList(const rapidjson::Value& value, const std::string& path,
                                         std::size_t minCount) const;

    const rapidjson::Value& m_object;
    std::string m_path;
    std::set<std::string> m_asked;
};

}  // namespace quarvo
