// EntityChecks: what check asks of each entity kind beyond what the drawing's reader
// found: one hook per kind that looks at the entity's own data (information blocks that
// must parse as JSON, loops that must suit the host polyline). A kind joins with one row
// in the hook table of EntityChecks.cpp.
#pragma once

#include <string>
#include <vector>

class AcDbEntity;

namespace quarvo {

class EntityChecks {
public:
    // Appends one line per finding about entity (without its handle and type).
    static void Check(const AcDbEntity* entity, std::vector<std::string>& findings);

    // "" when text is JSON, else why not ("at character 5: ..."). Nesting beyond
    // kMaxJsonDepth counts as not JSON: no reader of the blocks goes that deep.
    static std::string JsonProblem(const std::wstring& text);
    static constexpr int kMaxJsonDepth = 256;

    // A loop of 2D vertices with bulges as the host polyline takes it: "" when it does,
    // else why not. closed: the last vertex joins the first.
    struct Vertex {
        double x = 0.0;
        double y = 0.0;
        double bulge = 0.0;
    };
    static std::string LoopProblem(const std::vector<Vertex>& loop, bool closed);
    // Below this distance two consecutive vertices are one, a segment of no length.
    static constexpr double kVertexTolerance = 1e-5;
    // A bulge beyond this describes an arc of almost a full turn on a vanishing chord.
    static constexpr double kMaxBulge = 1000.0;
};

}  // namespace quarvo
