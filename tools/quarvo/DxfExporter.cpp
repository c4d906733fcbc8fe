// DxfExporter: model space's recorded primitives as DXF entities through dxflib.
#include "DxfExporter.h"

#include <dxflib/dl_dxf.h>
#include <iconv.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <memory>
#include <set>
#include <vector>

#include "DrawingQueries.h"
#include "OutputFile.h"
#include "ToolError.h"
#include "dbsymtb.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/TextCodec.h"

namespace quarvo {
namespace {

using headless::PrimitiveKind;
using headless::RecordedPrimitive;

constexpr double kPi = 3.14159265358979323846;
// A normal within this of the Z axis (either way) is a plan normal: the shape lies in the
// drawing's plane and DXF's plan entities carry it exactly.
constexpr double kPlanTolerance = 1e-9;
// Arcs out of the plan are written as polylines with segments of at most this angle.
constexpr double kArcStep = kPi / 36;
// The code page the file declares, and the encoding iconv knows it by.
constexpr const char* kCodePage = "ANSI_936";
constexpr const char* kEncoding = "GBK";

struct Drawn {
    RecordedPrimitive primitive;
    AcDbObjectId layer;
};

struct LayerLook {
    std::string name;
    int color = 7;
    int color24 = -1;
    std::string linetype = "CONTINUOUS";
};

bool IsPlan(const AcGeVector3d& normal)
{
    return std::fabs(normal.x) <= kPlanTolerance && std::fabs(normal.y) <= kPlanTolerance && normal.z != 0.0;
}

double Degrees(double radians)
{
    double degrees = radians * 180.0 / kPi;
    if (degrees < 0)
        degrees += 360.0;
    return degrees;
}

// The colour words DXF keeps: an index (256 by layer, 0 by block) and an optional RGB.
void ColorWords(const AcCmEntityColor& color, int& index, int& rgb)
{
    rgb = -1;
    if (color.isByLayer()) {
        index = 256;
    } else if (color.isByBlock()) {
        index = 0;
    } else if (color.isByColor()) {
        rgb = (color.red() << 16) | (color.green() << 8) | color.blue();
        index = 7;
    } else {
        index = color.colorIndex();
        if (index < 1 || index > 255)
            index = 7;
    }
}

class Writer {
public:
    Writer(AcDbDatabase* db, const std::string& path) : m_db(db), m_path(path) {}

    void Collect()
    {
        DrawingQueries::ForEachEntity(
            DrawingQueries::ModelSpaceEntities(m_db), "Drawing", [this](const AcDbObjectId&, AcDbEntity* entity) {
                if (entity == nullptr)
                    return;
                headless::RecordingWorldDraw draw;
                draw.setDatabase(m_db);
                draw.drawDrawable(entity);
                const AcDbObjectId layer = entity->layerId();
                for (const RecordedPrimitive& p : draw.primitives())
                    m_drawn.push_back({p, p.traits.layerId.isNull() ? layer : p.traits.layerId});
            });
    }

    DxfExportSummary Write()
    {
        for (const Drawn& d : m_drawn) {
            LayerOf(d.layer);
            LinetypeOf(d.primitive.traits.linetypeId);
            if (d.primitive.kind == PrimitiveKind::kText)
                StyleOf(d.primitive.style);
        }
        const std::string temporary = OutputFile::TemporaryFor(m_path);
        std::unique_ptr<DL_WriterA> out(m_dxf.out(temporary.c_str(), DL_Codes::AC1015));
        if (out == nullptr)
            throw ToolError("cannot write " + m_path);
        m_out = out.get();
        WriteHeaderAndTables();
        m_out->sectionEntities();
        for (const Drawn& d : m_drawn)
            WritePrimitive(d);
        m_out->sectionEnd();
        m_dxf.writeObjects(*m_out);
        m_dxf.writeObjectsEnd(*m_out);
        m_out->dxfEOF();
        const bool failed = m_out->openFailed();
        m_out->close();
        m_out = nullptr;
        if (failed) {
            OutputFile::Discard(temporary);
            throw ToolError("cannot write " + m_path);
        }
        OutputFile::Replace(temporary, m_path);
        return m_summary;
    }

private:
    const LayerLook& LayerOf(const AcDbObjectId& id)
    {
        auto found = m_layers.find(id);
        if (found != m_layers.end())
            return found->second;
        LayerLook look;
        AcDbLayerTableRecord* layer = nullptr;
        if (!id.isNull() && acdbOpenObject(layer, id, AcDb::kForRead) == Acad::eOk) {
            AcString name;
            layer->getName(name);
            look.name = DxfExporter::EncodeText(name.kwszPtr());
            ColorWords(layer->color().entityColor(), look.color, look.color24);
            if (look.color == 256 || look.color == 0)
                look.color = 7;
            const std::string linetype = LinetypeOf(layer->linetypeObjectId());
            if (linetype != "BYLAYER" && linetype != "BYBLOCK")
                look.linetype = linetype;
            layer->close();
        } else {
            look.name = "0";
        }
        m_layerOrder.push_back(id);
        return m_layers.emplace(id, look).first->second;
    }

    std::string LinetypeOf(const AcDbObjectId& id)
    {
        if (id.isNull())
            return "BYLAYER";
        auto found = m_linetypeNames.find(id);
        if (found != m_linetypeNames.end())
            return found->second;
        std::string name = "BYLAYER";
        AcDbLinetypeTableRecord* record = nullptr;
        if (acdbOpenObject(record, id, AcDb::kForRead) == Acad::eOk) {
            AcString text;
            record->getName(text);
            name = DxfExporter::EncodeText(text.kwszPtr());
            Linetype linetype;
            linetype.name = name;
            AcString comments;
            record->comments(comments);
            linetype.description = DxfExporter::EncodeText(comments.kwszPtr());
            linetype.patternLength = record->patternLength();
            for (int i = 0; i < record->numDashes(); ++i)
                linetype.dashes.push_back(record->dashLengthAt(i));
            record->close();
            if (IsStandardLinetype(name))
                name = Upper(name);
            else
                m_linetypes.push_back(linetype);
        }
        m_linetypeNames[id] = name;
        return name;
    }

    std::string StyleOf(const AcGiTextStyle& style)
    {
        std::string name = DxfExporter::EncodeText(style.styleName());
        if (name.empty())
            name = "Standard";
        if (m_styles.count(name) == 0 && Upper(name) != "STANDARD") {
            std::string font = DxfExporter::EncodeText(style.fileName());
            m_styles[name] = {font.empty() ? "txt" : font, DxfExporter::EncodeText(style.bigFontFileName())};
        }
        return name;
    }

    static std::string Upper(std::string text)
    {
        for (char& c : text)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return text;
    }

    static bool IsStandardLinetype(const std::string& name)
    {
        const std::string upper = Upper(name);
        return upper == "BYLAYER" || upper == "BYBLOCK" || upper == "CONTINUOUS";
    }

    void WriteHeaderAndTables()
    {
        m_dxf.writeHeader(*m_out);
        m_out->dxfString(9, "$DWGCODEPAGE");
        m_out->dxfString(3, kCodePage);
        m_out->sectionEnd();
        m_out->sectionTables();
        m_dxf.writeVPort(*m_out);

        m_out->tableLinetypes(static_cast<int>(3 + m_linetypes.size()));
        m_dxf.writeLinetype(*m_out, DL_LinetypeData("BYBLOCK", "", 0, 0, 0.0));
        m_dxf.writeLinetype(*m_out, DL_LinetypeData("BYLAYER", "", 0, 0, 0.0));
        m_dxf.writeLinetype(*m_out, DL_LinetypeData("CONTINUOUS", "Solid line", 0, 0, 0.0));
        for (Linetype& linetype : m_linetypes)
            m_dxf.writeLinetype(*m_out,
                                DL_LinetypeData(linetype.name, linetype.description, 0,
                                                static_cast<int>(linetype.dashes.size()), linetype.patternLength,
                                                linetype.dashes.empty() ? nullptr : linetype.dashes.data()));
        m_out->tableEnd();

        std::vector<const LayerLook*> layers;
        bool hasLayerZero = false;
        std::set<std::string> written;
        for (const AcDbObjectId& id : m_layerOrder) {
            const LayerLook& look = m_layers.at(id);
            if (!written.insert(look.name).second)
                continue;
            hasLayerZero = hasLayerZero || look.name == "0";
            layers.push_back(&look);
        }
        const LayerLook layerZero;
        m_out->tableLayers(static_cast<int>(layers.size() + (hasLayerZero ? 0 : 1)));
        if (!hasLayerZero)
            WriteLayer(LayerLook{"0", 7, -1, "CONTINUOUS"});
        for (const LayerLook* look : layers)
            WriteLayer(*look);
        m_out->tableEnd();

        m_out->tableStyle(static_cast<int>(1 + m_styles.size()));
        m_dxf.writeStyle(*m_out, DL_StyleData("Standard", 0, 0.0, 1.0, 0.0, 0, 2.5, "txt", ""));
        for (const auto& [name, fonts] : m_styles)
            m_dxf.writeStyle(*m_out, DL_StyleData(name, 0, 0.0, 1.0, 0.0, 0, 2.5, fonts.first, fonts.second));
        m_out->tableEnd();

        m_dxf.writeView(*m_out);
        m_dxf.writeUcs(*m_out);
        m_out->tableAppid(1);
        m_dxf.writeAppid(*m_out, "ACAD");
        m_out->tableEnd();
        m_dxf.writeDimStyle(*m_out, 1, 1, 1, 1, 1);
        m_dxf.writeBlockRecord(*m_out);
        m_out->tableEnd();
        m_out->sectionEnd();

        m_out->sectionBlocks();
        m_dxf.writeBlock(*m_out, DL_BlockData("*Model_Space", 0, 0.0, 0.0, 0.0));
        m_dxf.writeEndBlock(*m_out, "*Model_Space");
        m_dxf.writeBlock(*m_out, DL_BlockData("*Paper_Space", 0, 0.0, 0.0, 0.0));
        m_dxf.writeEndBlock(*m_out, "*Paper_Space");
        m_dxf.writeBlock(*m_out, DL_BlockData("*Paper_Space0", 0, 0.0, 0.0, 0.0));
        m_dxf.writeEndBlock(*m_out, "*Paper_Space0");
        m_out->sectionEnd();
    }

    void WriteLayer(const LayerLook& look)
    {
        m_dxf.writeLayer(*m_out, DL_LayerData(look.name, 0),
                         DL_Attributes("", look.color, look.color24, -3, look.linetype));
    }

    DL_Attributes AttributesOf(const Drawn& d)
    {
        int index = 256;
        int rgb = -1;
        ColorWords(d.primitive.traits.trueColor, index, rgb);
        return DL_Attributes(LayerOf(d.layer).name, index, rgb, static_cast<int>(d.primitive.traits.lineWeight),
                             LinetypeOf(d.primitive.traits.linetypeId));
    }

    void Count(const char* type) { ++m_summary.entities[type]; }

    void WriteLine(const AcGePoint3d& a, const AcGePoint3d& b, const DL_Attributes& attributes)
    {
        m_dxf.writeLine(*m_out, DL_LineData(a.x, a.y, a.z, b.x, b.y, b.z), attributes);
        Count("LINE");
    }

    // An LWPOLYLINE of points with bulges (seen from +Z) at the elevation of the first point.
    void WritePolyline(const std::vector<AcGePoint3d>& points, const std::vector<double>& bulges, bool closed,
                       const DL_Attributes& attributes)
    {
        if (points.size() < 2) {
            ++m_summary.skippedPrimitives;
            return;
        }
        if (points.size() == 2 && !closed && (bulges.empty() || bulges[0] == 0.0)) {
            WriteLine(points[0], points[1], attributes);
            return;
        }
        m_dxf.writePolyline(*m_out, DL_PolylineData(static_cast<int>(points.size()), 0, 0, closed ? 1 : 0, points[0].z),
                            attributes);
        for (std::size_t i = 0; i < points.size(); ++i)
            m_dxf.writeVertex(
                *m_out, DL_VertexData(points[i].x, points[i].y, points[i].z, i < bulges.size() ? bulges[i] : 0.0));
        m_dxf.writePolylineEnd(*m_out);
        Count("LWPOLYLINE");
    }

    // A solid HATCH: the first loop is the outline, the others holes.
    void WriteSolidHatch(const std::vector<std::vector<AcGePoint3d>>& loops, const DL_Attributes& attributes)
    {
        std::vector<const std::vector<AcGePoint3d>*> usable;
        for (const auto& loop : loops) {
            if (loop.size() >= 3)
                usable.push_back(&loop);
        }
        if (usable.empty()) {
            ++m_summary.skippedPrimitives;
            return;
        }
        DL_HatchData hatch(static_cast<int>(usable.size()), true, 1.0, 0.0, "SOLID");
        m_dxf.writeHatch1(*m_out, hatch, attributes);
        for (const auto* loop : usable) {
            DL_HatchLoopData loopData(static_cast<int>(loop->size()));
            m_dxf.writeHatchLoop1(*m_out, loopData);
            for (std::size_t i = 0; i < loop->size(); ++i) {
                const AcGePoint3d& a = (*loop)[i];
                const AcGePoint3d& b = (*loop)[(i + 1) % loop->size()];
                m_dxf.writeHatchEdge(*m_out, DL_HatchEdgeData(a.x, a.y, b.x, b.y));
            }
            m_dxf.writeHatchLoop2(*m_out, loopData);
        }
        m_dxf.writeHatch2(*m_out, hatch, attributes);
        Count("HATCH");
    }

    static std::vector<AcGePoint3d> ArcPoints(const AcGePoint3d& centre, const AcGeVector3d& normal,
                                              const AcGeVector3d& startDirection, double radius, double sweep)
    {
        const AcGeVector3d u = startDirection.normal();
        const AcGeVector3d v = normal.normal().crossProduct(u);
        const int steps = std::max(1, static_cast<int>(std::ceil(std::fabs(sweep) / kArcStep)));
        std::vector<AcGePoint3d> points;
        for (int i = 0; i <= steps; ++i) {
            const double t = sweep * i / steps;
            points.push_back(centre + u * (radius * std::cos(t)) + v * (radius * std::sin(t)));
        }
        return points;
    }

    void WriteArc(const RecordedPrimitive& p, const DL_Attributes& attributes)
    {
        if (p.points.size() < 3 || p.vectors.size() < 2 || p.numbers.size() < 2) {
            ++m_summary.skippedPrimitives;
            return;
        }
        const AcGePoint3d& centre = p.points[0];
        const double radius = p.numbers[0];
        const double sweep = p.numbers[1];
        if (!IsPlan(p.vectors[0])) {
            WritePolyline(ArcPoints(centre, p.vectors[0], p.vectors[1], radius, sweep), {}, false, attributes);
            return;
        }
        if (std::fabs(sweep) >= 2 * kPi - 1e-12) {
            m_dxf.writeCircle(*m_out, DL_CircleData(centre.x, centre.y, centre.z, radius), attributes);
            Count("CIRCLE");
            return;
        }
        const double atStart = std::atan2(p.points[1].y - centre.y, p.points[1].x - centre.x);
        const double atEnd = std::atan2(p.points[2].y - centre.y, p.points[2].x - centre.x);
        // Seen from below, counter-clockwise from start to end is clockwise from above.
        const bool fromAbove = p.vectors[0].z > 0;
        m_dxf.writeArc(*m_out,
                       DL_ArcData(centre.x, centre.y, centre.z, radius, Degrees(fromAbove ? atStart : atEnd),
                                  Degrees(fromAbove ? atEnd : atStart)),
                       attributes);
        Count("ARC");
    }

    void WriteCircle(const RecordedPrimitive& p, const DL_Attributes& attributes)
    {
        if (p.points.empty() || p.vectors.empty() || p.numbers.empty()) {
            ++m_summary.skippedPrimitives;
            return;
        }
        if (!IsPlan(p.vectors[0])) {
            const AcGeVector3d start = p.vectors[0].perpVector();
            WritePolyline(ArcPoints(p.points[0], p.vectors[0], start, p.numbers[0], 2 * kPi), {}, true, attributes);
            return;
        }
        m_dxf.writeCircle(*m_out, DL_CircleData(p.points[0].x, p.points[0].y, p.points[0].z, p.numbers[0]), attributes);
        Count("CIRCLE");
    }

    void WritePline(const RecordedPrimitive& p, const DL_Attributes& attributes)
    {
        const std::size_t n = p.points.size();
        if (p.vectors.empty() || p.integers.size() < 3 || p.numbers.size() != 1 + 3 * n) {
            ++m_summary.skippedPrimitives;
            return;
        }
        // Bulges keep their sense about the normal; seen from above a downward normal turns them.
        const double sense = p.vectors[0].z < 0 ? -1.0 : 1.0;
        bool closed = p.integers[2] != 0;
        const std::size_t from = static_cast<std::size_t>(std::max<Adesk::Int64>(0, p.integers[0]));
        const std::size_t segments = static_cast<std::size_t>(std::max<Adesk::Int64>(0, p.integers[1]));
        std::vector<AcGePoint3d> points;
        std::vector<double> bulges;
        if (segments == 0 || from >= n) {
            points = p.points;
            for (std::size_t i = 0; i < n; ++i)
                bulges.push_back(sense * p.numbers[1 + 3 * i]);
        } else {
            // Part of the polyline: the chosen segments as an open one.
            const std::size_t count = std::min(segments, closed ? n : n - 1 - from);
            for (std::size_t i = 0; i <= count; ++i) {
                const std::size_t at = (from + i) % n;
                points.push_back(p.points[at]);
                bulges.push_back(i < count ? sense * p.numbers[1 + 3 * at] : 0.0);
            }
            closed = false;
        }
        if (!IsPlan(p.vectors[0])) {
            bulges.assign(points.size(), 0.0);  // arcs out of the plan are drawn by their chords
        }
        WritePolyline(points, bulges, closed, attributes);
    }

    void WriteShell(const RecordedPrimitive& p, const DL_Attributes& attributes)
    {
        std::vector<std::vector<AcGePoint3d>> faces;
        std::vector<bool> holes;
        const std::vector<Adesk::Int64>& list = p.integers;
        for (std::size_t i = 0; i < list.size();) {
            const Adesk::Int64 count = list[i++];
            const std::size_t size = static_cast<std::size_t>(count < 0 ? -count : count);
            if (size > list.size() - i) {
                ++m_summary.skippedPrimitives;
                return;
            }
            std::vector<AcGePoint3d> face;
            for (std::size_t k = 0; k < size; ++k, ++i) {
                const Adesk::Int64 index = list[i];
                if (index < 0 || static_cast<std::size_t>(index) >= p.points.size()) {
                    ++m_summary.skippedPrimitives;
                    return;
                }
                face.push_back(p.points[static_cast<std::size_t>(index)]);
            }
            faces.push_back(face);
            holes.push_back(count < 0);
        }
        if (p.traits.fillType == kAcGiFillAlways) {
            // Each face with the holes that follow it is one filled region.
            for (std::size_t i = 0; i < faces.size();) {
                std::vector<std::vector<AcGePoint3d>> loops{faces[i++]};
                while (i < faces.size() && holes[i])
                    loops.push_back(faces[i++]);
                WriteSolidHatch(loops, attributes);
            }
            return;
        }
        for (const auto& face : faces)
            WritePolyline(face, {}, true, attributes);
    }

    void WriteMesh(const RecordedPrimitive& p, const DL_Attributes& attributes)
    {
        if (p.integers.size() < 2 || p.integers[0] < 1 || p.integers[1] < 1 ||
            static_cast<std::size_t>(p.integers[0]) * static_cast<std::size_t>(p.integers[1]) != p.points.size()) {
            ++m_summary.skippedPrimitives;
            return;
        }
        const std::size_t rows = static_cast<std::size_t>(p.integers[0]);
        const std::size_t columns = static_cast<std::size_t>(p.integers[1]);
        for (std::size_t r = 0; r < rows; ++r)
            WritePolyline(std::vector<AcGePoint3d>(p.points.begin() + static_cast<long>(r * columns),
                                                   p.points.begin() + static_cast<long>((r + 1) * columns)),
                          {}, false, attributes);
        for (std::size_t c = 0; c < columns; ++c) {
            std::vector<AcGePoint3d> column;
            for (std::size_t r = 0; r < rows; ++r)
                column.push_back(p.points[r * columns + c]);
            WritePolyline(column, {}, false, attributes);
        }
    }

    void WriteText(const RecordedPrimitive& p, const DL_Attributes& attributes)
    {
        if (p.points.empty() || p.vectors.size() < 2 || p.numbers.size() < 2 || p.text.empty()) {
            ++m_summary.skippedPrimitives;
            return;
        }
        const AcGePoint3d& at = p.points[0];
        const double angle = std::atan2(p.vectors[1].y, p.vectors[1].x);
        const double widthFactor = p.numbers[1] > 0 ? p.numbers[1] : 1.0;
        // The recorded position is the start of the base line: left and base-line alignment.
        m_dxf.writeText(*m_out,
                        DL_TextData(at.x, at.y, at.z, at.x, at.y, at.z, p.numbers[0], widthFactor, 0, 0, 0,
                                    DxfExporter::EncodeText(p.text), StyleOf(p.style), angle),
                        attributes);
        Count("TEXT");
    }

    void WriteEndless(const RecordedPrimitive& p, const DL_Attributes& attributes, bool bothWays)
    {
        if (p.points.size() < 2) {
            ++m_summary.skippedPrimitives;
            return;
        }
        const AcGeVector3d d = p.points[1] - p.points[0];
        if (bothWays) {
            m_dxf.writeXLine(*m_out, DL_XLineData(p.points[0].x, p.points[0].y, p.points[0].z, d.x, d.y, d.z),
                             attributes);
            Count("XLINE");
        } else {
            m_dxf.writeRay(*m_out, DL_RayData(p.points[0].x, p.points[0].y, p.points[0].z, d.x, d.y, d.z), attributes);
            Count("RAY");
        }
    }

    void WritePrimitive(const Drawn& d)
    {
        const RecordedPrimitive& p = d.primitive;
        const DL_Attributes attributes = AttributesOf(d);
        switch (p.kind) {
        case PrimitiveKind::kCircle: WriteCircle(p, attributes); break;
        case PrimitiveKind::kArc: WriteArc(p, attributes); break;
        case PrimitiveKind::kPolyline: WritePolyline(p.points, {}, false, attributes); break;
        case PrimitiveKind::kPolygon:
            if (p.traits.fillType == kAcGiFillAlways)
                WriteSolidHatch({p.points}, attributes);
            else
                WritePolyline(p.points, {}, true, attributes);
            break;
        case PrimitiveKind::kPline: WritePline(p, attributes); break;
        case PrimitiveKind::kMesh: WriteMesh(p, attributes); break;
        case PrimitiveKind::kShell: WriteShell(p, attributes); break;
        case PrimitiveKind::kText: WriteText(p, attributes); break;
        case PrimitiveKind::kXline: WriteEndless(p, attributes, true); break;
        case PrimitiveKind::kRay: WriteEndless(p, attributes, false); break;
        case PrimitiveKind::kWorldLine:
            if (p.points.size() >= 2)
                WriteLine(p.points[0], p.points[1], attributes);
            else
                ++m_summary.skippedPrimitives;
            break;
        case PrimitiveKind::kExtents:
        case PrimitiveKind::kClip:
        case PrimitiveKind::kClipEnd: break;  // they say how to show, not what
        }
    }

    struct Linetype {
        std::string name;
        std::string description;
        double patternLength = 0.0;
        std::vector<double> dashes;
    };

    AcDbDatabase* m_db;
    std::string m_path;
    std::vector<Drawn> m_drawn;
    std::map<AcDbObjectId, LayerLook> m_layers;
    std::vector<AcDbObjectId> m_layerOrder;
    std::map<AcDbObjectId, std::string> m_linetypeNames;
    std::vector<Linetype> m_linetypes;
    std::map<std::string, std::pair<std::string, std::string>> m_styles;
    DL_Dxf m_dxf;
    DL_WriterA* m_out = nullptr;
    DxfExportSummary m_summary;
};

}  // namespace

int DxfExportSummary::total() const
{
    int sum = 0;
    for (const auto& entry : entities)
        sum += entry.second;
    return sum;
}

DxfExportSummary DxfExporter::Export(AcDbDatabase* db, const std::string& path)
{
    Writer writer(db, path);
    writer.Collect();
    return writer.Write();
}

std::string DxfExporter::EncodeText(const std::wstring& text)
{
    std::wstring plain = text;
    for (wchar_t& c : plain) {
        if (c < 0x20)
            c = L' ';  // a line break would end the group's value
    }
    std::string utf8 = headless::toUtf8(plain);
    std::string out;
    iconv_t converter = iconv_open(kEncoding, "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw ToolError("this system cannot convert text to the GBK code page");
    char* in = utf8.data();
    std::size_t left = utf8.size();
    char buffer[256];
    while (left > 0) {
        char* to = buffer;
        std::size_t room = sizeof buffer;
        const std::size_t result = iconv(converter, &in, &left, &to, &room);
        out.append(buffer, static_cast<std::size_t>(to - buffer));
        if (result != static_cast<std::size_t>(-1) || errno == E2BIG)
            continue;
        // A character the code page lacks: DXF's escape of its code point, then the next one.
        const std::wstring rest = headless::fromUtf8(std::string(in, left));
        const unsigned code = rest.empty() ? 0xFFFDu : static_cast<unsigned>(rest[0]);
        char escape[16];
        std::snprintf(escape, sizeof escape, "\\U+%04X", code <= 0xFFFF ? code : 0xFFFDu);
        out += escape;
        const std::string skipped = headless::toUtf8(rest.substr(0, 1));
        const std::size_t skip = std::max<std::size_t>(1, std::min(skipped.size(), left));
        in += skip;
        left -= skip;
    }
    iconv_close(converter);
    return out;
}

}  // namespace quarvo
