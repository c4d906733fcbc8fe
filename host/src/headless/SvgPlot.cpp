// SvgPlot: model space drawn through the recording draw, grouped by layer, coloured with
// the host's colours, framed by the drawing's extents.
#include "headless/SvgPlot.h"

#include <cmath>
#include <cstdio>
#include <cwctype>
#include <map>
#include <sstream>

#include "AcDbEntity.h"
#include "PrimitiveGeometry.h"
#include "SvgCanvas.h"
#include "acutads.h"
#include "dbsymtb.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/TextCodec.h"

namespace headless {

namespace {

// Texts use the first of these fonts the viewer has; the first shows Chinese and is the
// one the project's machines install.
constexpr const char* kFontFamily = "'WenQuanYi Micro Hei', 'Noto Sans CJK SC', 'Microsoft YaHei', sans-serif";
// Index 7 and by-block draw in the page's foreground: black on white.
constexpr const char* kForeground = "#000000";
// Lineweights are in hundredths of a millimetre; the default one draws one pixel wide.
constexpr double kLineweightPerPixel = 25.0;

struct LayerLook {
    std::string id;       // the group's id
    std::wstring name;
    AcCmEntityColor color;
    AcDb::LineWeight lineWeight = AcDb::kLnWtByLwDefault;
    AcDbObjectId linetype;
};

struct Drawn {
    RecordedPrimitive primitive;
    AcDbObjectId layer;
};

std::string hexColour(Adesk::UInt32 rgb)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%06X", static_cast<unsigned>(rgb & 0xFFFFFFu));
    return text;
}

std::string colourOf(const AcCmEntityColor& color, const LayerLook* layer)
{
    if (color.isByLayer())
        return layer != nullptr && !layer->color.isByLayer() ? colourOf(layer->color, nullptr) : kForeground;
    if (color.isByColor())
        return hexColour((static_cast<Adesk::UInt32>(color.red()) << 16) |
                         (static_cast<Adesk::UInt32>(color.green()) << 8) | color.blue());
    const int index = color.colorIndex();
    if (index <= 0 || index == 7 || index > 255 || color.isForeground())
        return kForeground;
    return hexColour(AcCmEntityColor::lookUpRGB(static_cast<Adesk::UInt8>(index)));
}

double strokeOf(AcDb::LineWeight weight, const LayerLook* layer)
{
    if (weight == AcDb::kLnWtByLayer && layer != nullptr)
        weight = layer->lineWeight;
    return weight > 0 ? std::max(1.0, weight / kLineweightPerPixel) : 1.0;
}

// XML names: letters, digits and "-_." (and anything beyond ASCII); the rest becomes "_".
std::string groupIdFor(const std::wstring& name)
{
    std::wstring id = L"layer-";
    for (wchar_t c : name) {
        const bool plain = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') ||
                           c == L'-' || c == L'_' || c == L'.' || c > 0x7F;
        id += plain ? c : L'_';
    }
    return toUtf8(id);
}

class Plotter {
public:
    explicit Plotter(AcDbDatabase* db) : m_db(db) {}

    void drawModelSpace()
    {
        AcDbBlockTable* blocks = nullptr;
        if (m_db->getBlockTable(blocks, AcDb::kForRead) != Acad::eOk)
            return;
        AcDbBlockTableRecord* model = nullptr;
        const Acad::ErrorStatus es = blocks->getAt(ACDB_MODEL_SPACE, model, AcDb::kForRead);
        blocks->close();
        if (es != Acad::eOk)
            return;
        AcDbBlockTableRecordIterator* it = nullptr;
        model->newIterator(it);
        for (; !it->done(); it->step()) {
            AcDbEntity* entity = nullptr;
            if (it->getEntity(entity, AcDb::kForRead) != Acad::eOk)
                continue;
            RecordingWorldDraw draw;
            draw.setDatabase(m_db);
            draw.drawDrawable(entity);
            const AcDbObjectId entityLayer = entity->layerId();
            entity->close();
            for (const RecordedPrimitive& p : draw.primitives())
                m_drawn.push_back({p, p.traits.layerId.isNull() ? entityLayer : p.traits.layerId});
        }
        delete it;
        model->close();
    }

    AcDbExtents extents() const
    {
        AcDbExtents box;
        for (const Drawn& d : m_drawn)
            hostfile::PrimitiveGeometry::addExtents(d.primitive, box);
        return box;
    }

    const LayerLook* layerOf(const AcDbObjectId& id)
    {
        const auto found = m_layers.find(id);
        if (found != m_layers.end())
            return &found->second;
        LayerLook look;
        AcDbLayerTableRecord* layer = nullptr;
        if (!id.isNull() && acdbOpenObject(layer, id, AcDb::kForRead) == Acad::eOk) {
            AcString name;
            layer->getName(name);
            look.name = name.kwszPtr();
            look.color = layer->color().entityColor();
            look.lineWeight = layer->lineWeight();
            look.linetype = layer->linetypeObjectId();
            layer->close();
        } else {
            look.color = AcCmEntityColor(AcCm::kForeground);
        }
        std::string groupId = groupIdFor(look.name);
        for (int n = 2; m_usedIds.count(groupId) != 0; ++n)
            groupId = groupIdFor(look.name) + "-" + std::to_string(n);
        m_usedIds[groupId] = true;
        look.id = groupId;
        m_order.push_back(id);
        return &m_layers.emplace(id, look).first->second;
    }

    // The dash pattern a primitive is stroked with, in drawing units: its linetype's, the
    // layer's for BYLAYER, none for BYBLOCK, CONTINUOUS or a linetype that cannot be read;
    // scaled by the primitive's linetype scale and the drawing's.
    std::vector<double> dashesOf(const RecordedTraits& traits, const LayerLook* layer)
    {
        AcDbObjectId id = traits.linetypeId;
        if (isNamed(id, L"BYLAYER"))
            id = layer != nullptr ? layer->linetype : AcDbObjectId::kNull;
        std::vector<double> dashes = patternOf(id);
        const double scale = traits.linetypeScale * m_db->ltscale();
        for (double& dash : dashes)
            dash *= std::isfinite(scale) && scale > 0.0 ? scale : 1.0;
        return dashes;
    }

    std::string document(const SvgPlotOptions& options)
    {
        AcDbExtents box = extents();
        if (box.isEmpty())
            box.set(AcGePoint3d::kOrigin, AcGePoint3d(1, 1, 0));
        const double width = box.maxPoint().x - box.minPoint().x;
        const double height = box.maxPoint().y - box.minPoint().y;
        const double side = std::max(width, height);
        const double margin = side > 0.0 ? side * options.marginFraction : 1.0;
        const double viewWidth = width + 2 * margin;
        const double viewHeight = height + 2 * margin;
        const int pixels = options.widthPixels > 0 ? options.widthPixels : 1200;
        const double unitsPerPixel = viewWidth / pixels;
        using hostfile::SvgCanvas;
        std::ostringstream out;
        out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << pixels << "\" height=\""
            << SvgCanvas::number(std::ceil(pixels * viewHeight / viewWidth)) << "\" viewBox=\""
            << SvgCanvas::number(box.minPoint().x - margin) << ' ' << SvgCanvas::number(-box.maxPoint().y - margin)
            << ' ' << SvgCanvas::number(viewWidth) << ' ' << SvgCanvas::number(viewHeight) << "\">\n";
        if (!options.title.empty())
            out << "<title>" << SvgCanvas::escape(options.title) << "</title>\n";
        out << "<rect x=\"" << SvgCanvas::number(box.minPoint().x - margin) << "\" y=\""
            << SvgCanvas::number(-box.maxPoint().y - margin) << "\" width=\"" << SvgCanvas::number(viewWidth)
            << "\" height=\"" << SvgCanvas::number(viewHeight) << "\" fill=\"#FFFFFF\"/>\n"
            // Strokes are one pixel wide whatever the drawing's size.
            << "<g fill=\"none\" stroke-width=\"" << SvgCanvas::number(unitsPerPixel)
            << "\" stroke-linecap=\"round\" stroke-linejoin=\"round\" font-family=\"" << kFontFamily << "\">\n";

        const SvgCanvas canvas(box, unitsPerPixel);
        std::map<AcDbObjectId, std::vector<std::string>> elements;
        for (const Drawn& d : m_drawn) {
            const LayerLook* layer = layerOf(d.layer);
            const std::string element =
                canvas.element(d.primitive, colourOf(d.primitive.traits.trueColor, layer),
                               strokeOf(d.primitive.traits.lineWeight, layer), dashesOf(d.primitive.traits, layer));
            if (!element.empty())
                elements[d.layer].push_back(element);
        }
        for (const AcDbObjectId& id : m_order) {
            const LayerLook& layer = m_layers.at(id);
            out << "<g id=\"" << layer.id << "\" data-layer=\"" << SvgCanvas::escape(layer.name) << "\">\n";
            for (const std::string& element : elements[id])
                out << "  " << element << '\n';
            out << "</g>\n";
        }
        out << "</g>\n</svg>\n";
        return out.str();
    }

private:
    struct LinetypeLook {
        std::wstring name;  // upper case
        std::vector<double> dashes;
    };

    const LinetypeLook& linetypeOf(const AcDbObjectId& id)
    {
        const auto found = m_linetypes.find(id);
        if (found != m_linetypes.end())
            return found->second;
        LinetypeLook look;
        AcDbLinetypeTableRecord* linetype = nullptr;
        if (!id.isNull() && acdbOpenObject(linetype, id, AcDb::kForRead) == Acad::eOk) {
            AcString name;
            linetype->getName(name);
            for (const wchar_t* c = name.kwszPtr(); *c != 0; ++c)
                look.name += static_cast<wchar_t>(std::towupper(*c));
            for (int i = 0; i < linetype->numDashes(); ++i)
                look.dashes.push_back(linetype->dashLengthAt(i));
            linetype->close();
        }
        return m_linetypes.emplace(id, look).first->second;
    }

    bool isNamed(const AcDbObjectId& id, const wchar_t* upperName) { return linetypeOf(id).name == upperName; }

    std::vector<double> patternOf(const AcDbObjectId& id)
    {
        const LinetypeLook& look = linetypeOf(id);
        if (look.name == L"BYBLOCK" || look.name == L"CONTINUOUS")
            return {};
        return look.dashes;
    }

    AcDbDatabase* m_db;
    std::vector<Drawn> m_drawn;
    std::map<AcDbObjectId, LinetypeLook> m_linetypes;
    std::map<AcDbObjectId, LayerLook> m_layers;
    std::vector<AcDbObjectId> m_order;
    std::map<std::string, bool> m_usedIds;
};

}  // namespace

std::string SvgPlot::render(AcDbDatabase* db, const SvgPlotOptions& options)
{
    if (db == nullptr)
        return std::string();
    Plotter plotter(db);
    plotter.drawModelSpace();
    return plotter.document(options);
}

Acad::ErrorStatus SvgPlot::plot(AcDbDatabase* db, const std::wstring& path, const SvgPlotOptions& options)
{
    if (db == nullptr)
        return Acad::eNoDatabase;
    const std::string svg = render(db, options);
    std::FILE* file = std::fopen(toUtf8(path).c_str(), "wb");
    bool written = file != nullptr && std::fwrite(svg.data(), 1, svg.size(), file) == svg.size();
    if (file != nullptr)
        written = std::fclose(file) == 0 && written;
    if (!written) {
        acutPrintf(L"\nCannot write the plot \"%s\".", path.c_str());
        return Acad::eFilerError;
    }
    return Acad::eOk;
}

}  // namespace headless
