// quarvo plot: the host's plot of model space, optionally reduced to some layers, written
// as SVG or rendered to PNG.
#include "PlotCommand.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <set>

#include "DrawingQueries.h"
#include "OutputFile.h"
#include "PngRenderer.h"
#include "SvgLayerFilter.h"
#include "ToolError.h"
#include "ToolSession.h"
#include "dbsymtb.h"
#include "headless/SvgPlot.h"
#include "headless/TextCodec.h"

namespace quarvo {
namespace {

// Above this many entities the plot says what it is doing before it starts.
constexpr std::size_t kLargeDrawing = 5000;

void RequireLayers(AcDbDatabase* db, const std::vector<std::string>& layers)
{
    AcDbLayerTable* table = nullptr;
    if (db->getLayerTable(table, AcDb::kForRead) != Acad::eOk)
        throw ToolError("the drawing's layer table cannot be read");
    for (const std::string& layer : layers) {
        if (!table->has(headless::fromUtf8(layer).c_str())) {
            table->close();
            throw ToolError("the drawing has no layer \"" + layer + "\"");
        }
    }
    table->close();
}

}  // namespace

std::string PlotFormatOf(const std::string& path)
{
    const std::size_t dot = path.find_last_of('.');
    if (dot == std::string::npos || path.find('/', dot) != std::string::npos)
        return std::string();
    std::string extension = path.substr(dot + 1);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == "svg" || extension == "png" ? extension : std::string();
}

int RunPlot(const PlotOptions& options)
{
    const std::string format = PlotFormatOf(options.output);
    if (format.empty())
        throw ToolError("the output " + options.output + " must end in .svg or .png");
    ToolSession tool(options.modulePath);
    headless::DrawingReadReport report;
    AcDbDatabase* db = tool.Open(options.drawing, report)->database();
    RequireLayers(db, options.layers);

    const std::size_t entities = DrawingQueries::ModelSpaceEntities(db).size();
    if (entities > kLargeDrawing)
        std::fprintf(stderr, "Plotting %zu entities...\n", entities);
    headless::SvgPlotOptions plotOptions;
    plotOptions.widthPixels = options.widthPixels;
    plotOptions.title = headless::fromUtf8(options.drawing);
    std::string svg = headless::SvgPlot::render(db, plotOptions);
    if (!options.layers.empty())
        svg = SvgLayerFilter::Keep(svg, std::set<std::string>(options.layers.begin(), options.layers.end()));

    if (format == "svg") {
        OutputFile::Write(options.output, svg);
    } else {
        const std::string temporary = OutputFile::TemporaryFor(options.output);
        try {
            PngRenderer::Render(svg, temporary);
        } catch (const ToolError&) {
            OutputFile::Discard(temporary);
            throw;
        }
        OutputFile::Replace(temporary, options.output);
    }
    return kExitOk;
}

}  // namespace quarvo
