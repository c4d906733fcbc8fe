// PngRenderer: SVG to PNG through librsvg.
#include "PngRenderer.h"

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <cmath>
#include <memory>

#include "ToolError.h"

namespace quarvo {
namespace {

struct HandleRelease {
    void operator()(RsvgHandle* handle) const { g_object_unref(handle); }
};
struct SurfaceRelease {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ContextRelease {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};

std::string TakeMessage(GError* error)
{
    std::string message = error != nullptr && error->message != nullptr ? error->message : "unknown error";
    if (error != nullptr)
        g_error_free(error);
    return message;
}

}  // namespace

void PngRenderer::Render(const std::string& svg, const std::string& path)
{
    GError* error = nullptr;
    std::unique_ptr<RsvgHandle, HandleRelease> handle(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), &error));
    if (handle == nullptr)
        throw ToolError("cannot render the plot: " + TakeMessage(error));
    rsvg_handle_set_dpi(handle.get(), 96.0);
    gdouble width = 0;
    gdouble height = 0;
    if (!rsvg_handle_get_intrinsic_size_in_pixels(handle.get(), &width, &height))
        throw ToolError("cannot render the plot: the picture has no size in pixels");
    const int pixelsWide = static_cast<int>(std::ceil(width));
    const int pixelsHigh = static_cast<int>(std::ceil(height));
    if (pixelsWide < 1 || pixelsHigh < 1 || pixelsWide > kMaxSide || pixelsHigh > kMaxSide)
        throw ToolError("cannot render the plot: a picture of " + std::to_string(pixelsWide) + " x " +
                        std::to_string(pixelsHigh) + " pixels is out of bounds (at most " + std::to_string(kMaxSide) +
                        " a side); choose another --width");

    std::unique_ptr<cairo_surface_t, SurfaceRelease> surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixelsWide, pixelsHigh));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        throw ToolError("cannot render the plot: not enough memory for the picture");
    {
        std::unique_ptr<cairo_t, ContextRelease> context(cairo_create(surface.get()));
        const RsvgRectangle viewport{0, 0, static_cast<double>(pixelsWide), static_cast<double>(pixelsHigh)};
        if (!rsvg_handle_render_document(handle.get(), context.get(), &viewport, &error))
            throw ToolError("cannot render the plot: " + TakeMessage(error));
    }
    if (cairo_surface_write_to_png(surface.get(), path.c_str()) != CAIRO_STATUS_SUCCESS)
        throw ToolError("cannot write " + path);
}

}  // namespace quarvo
