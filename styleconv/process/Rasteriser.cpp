#include "styleconv/process/Rasteriser.h"

#include <cmath>
#include <cstddef>
#include <memory>
#include <new>

#if !defined(_WIN32)
#include <dlfcn.h>
#endif

// The cache of typefaces, which the libraries keep until the process ends, is no leak.
#if defined(__SANITIZE_ADDRESS__)
#define STYLECONV_LOOKS_FOR_LEAKS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define STYLECONV_LOOKS_FOR_LEAKS 1
#endif
#endif
#if defined(STYLECONV_LOOKS_FOR_LEAKS) && !defined(_WIN32)
// NOLINTBEGIN: the names that the sanitizer asks for.
extern "C" {
__attribute__((visibility("default"))) const char* __lsan_default_suppressions();
__attribute__((visibility("default"))) const char* __lsan_default_options();
const char* __lsan_default_suppressions() {
    return "leak:libfontconfig.so\n";
}
const char* __lsan_default_options() {
    return "print_suppressions=0";
}
}
// NOLINTEND
#endif

namespace styleconv {

#if defined(_WIN32)

std::string WhyNoRasteriser() {
    return "PNG pictures are not made on Windows";
}

Raster DrawPicture(std::string_view /*svg*/) {
    return {{}, WhyNoRasteriser()};
}

Raster DrawPictures(const std::vector<PlacedPicture>& /*pictures*/, int /*width*/, int /*height*/) {
    return {{}, WhyNoRasteriser()};
}

#else

namespace {

// A side of a picture, which the library's own images end at, and all its pixels, of four bytes each.
constexpr double kLongestSide = 32'767;
constexpr double kMostPixels = 100'000'000;
constexpr double kPixelsPerInch = 96; // as style sheets have them

// The libraries' own types and numbers, as their binary interface has them.
struct RsvgHandle;
struct CairoSurface;
struct CairoContext;
struct GlibError {
    unsigned domain;
    int code;
    char* message;
};
struct RsvgRectangle {
    double x, y, width, height;
};
constexpr int kArgb32 = 0;
constexpr int kNoError = 0;
constexpr int kWriteError = 11;
using CairoWrite = int (*)(void* closure, const unsigned char* data, unsigned length);

template <class Function>
bool Find(void* library, const char* name, Function*& function) {
    function = library == nullptr ? nullptr : reinterpret_cast<Function*>(dlsym(library, name));
    return function != nullptr;
}

// What is called of the libraries. They stay loaded until the process ends.
struct Rasteriser {
    RsvgHandle* (*newFromData)(const unsigned char* data, std::size_t size, GlibError** error);
    void (*setDpi)(RsvgHandle* handle, double dpi);
    int (*sizeInPixels)(RsvgHandle* handle, double* width, double* height);
    int (*render)(RsvgHandle* handle, CairoContext* context, const RsvgRectangle* place, GlibError** error);
    void (*unref)(void* object);
    void (*freeError)(GlibError* error);
    CairoSurface* (*newSurface)(int format, int width, int height);
    int (*surfaceStatus)(CairoSurface* surface);
    int (*writePng)(CairoSurface* surface, CairoWrite write, void* closure);
    void (*destroySurface)(CairoSurface* surface);
    CairoContext* (*newContext)(CairoSurface* surface);
    void (*save)(CairoContext* context);
    void (*restore)(CairoContext* context);
    void (*rectangle)(CairoContext* context, double x, double y, double width, double height);
    void (*clip)(CairoContext* context);
    int (*contextStatus)(CairoContext* context);
    void (*destroyContext)(CairoContext* context);
    const char* (*statusText)(int status);
    bool isThere = false;

    Rasteriser() {
        void* const rsvg = dlopen("librsvg-2.so.2", RTLD_NOW | RTLD_LOCAL);
        void* const cairo = dlopen("libcairo.so.2", RTLD_NOW | RTLD_LOCAL);
        void* const gobject = dlopen("libgobject-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
        void* const glib = dlopen("libglib-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
        isThere =
            Find(rsvg, "rsvg_handle_new_from_data", newFromData) &&
            Find(rsvg, "rsvg_handle_set_dpi", setDpi) &&
            Find(rsvg, "rsvg_handle_get_intrinsic_size_in_pixels", sizeInPixels) &&
            Find(rsvg, "rsvg_handle_render_document", render) && Find(gobject, "g_object_unref", unref) &&
            Find(glib, "g_error_free", freeError) && Find(cairo, "cairo_image_surface_create", newSurface) &&
            Find(cairo, "cairo_surface_status", surfaceStatus) &&
            Find(cairo, "cairo_surface_write_to_png_stream", writePng) &&
            Find(cairo, "cairo_surface_destroy", destroySurface) && Find(cairo, "cairo_create", newContext) &&
            Find(cairo, "cairo_save", save) && Find(cairo, "cairo_restore", restore) &&
            Find(cairo, "cairo_rectangle", rectangle) && Find(cairo, "cairo_clip", clip) &&
            Find(cairo, "cairo_status", contextStatus) && Find(cairo, "cairo_destroy", destroyContext) &&
            Find(cairo, "cairo_status_to_string", statusText);
    }
};

// NOLINTBEGIN(clang-analyzer-core.CallAndMessage): nothing is called before isThere was looked at.
const Rasteriser& TheRasteriser() {
    static const Rasteriser rasteriser;
    return rasteriser;
}

std::string TakeMessage(GlibError* error) {
    if (error == nullptr) {
        return "the picture cannot be drawn";
    }
    std::string message = error->message;
    TheRasteriser().freeError(error);
    return "the picture cannot be drawn: " + message;
}

using Document = std::unique_ptr<RsvgHandle, void (*)(void*)>;

Document Load(std::string_view svg, std::string& problem) {
    GlibError* error = nullptr;
    Document document(
        TheRasteriser().newFromData(reinterpret_cast<const unsigned char*>(svg.data()), svg.size(), &error),
        TheRasteriser().unref);
    if (!document) {
        problem = TakeMessage(error);
    } else {
        TheRasteriser().setDpi(document.get(), kPixelsPerInch);
    }
    return document;
}

// An image of the library and what draws into it.
class Canvas {
public:
    Canvas(int width, int height)
        : surface_(TheRasteriser().newSurface(kArgb32, width, height), TheRasteriser().destroySurface),
          context_(TheRasteriser().newContext(surface_.get()), TheRasteriser().destroyContext) {}

    std::string Draw(RsvgHandle* document, const RsvgRectangle& place) {
        const Rasteriser& by = TheRasteriser();
        by.save(context_.get());
        by.rectangle(context_.get(), place.x, place.y, place.width, place.height);
        by.clip(context_.get());
        GlibError* error = nullptr;
        const bool isDrawn = by.render(document, context_.get(), &place, &error) != 0;
        by.restore(context_.get());
        return isDrawn ? ProblemOf(by.contextStatus(context_.get())) : TakeMessage(error);
    }

    Raster Take() {
        Raster raster;
        raster.problem = ProblemOf(TheRasteriser().surfaceStatus(surface_.get()));
        if (raster.problem.empty()) {
            raster.problem = ProblemOf(TheRasteriser().writePng(surface_.get(), Append, &raster.png));
        }
        return raster;
    }

private:
    static int Append(void* png, const unsigned char* data, unsigned length) noexcept {
        try {
            static_cast<std::string*>(png)->append(reinterpret_cast<const char*>(data), length);
            return kNoError;
        } catch (const std::bad_alloc&) {
            return kWriteError;
        }
    }

    static std::string ProblemOf(int status) {
        return status == kNoError
                   ? std::string()
                   : std::string("the picture cannot be drawn: ") + TheRasteriser().statusText(status);
    }

    std::unique_ptr<CairoSurface, void (*)(CairoSurface*)> surface_;
    std::unique_ptr<CairoContext, void (*)(CairoContext*)> context_;
};

std::string ProblemOfSize(double width, double height) {
    if (width >= 1 && height >= 1 && width <= kLongestSide && height <= kLongestSide &&
        width * height <= kMostPixels) {
        return {};
    }
    // Anything but a finite number of at least 1 is no size that anybody wants to read.
    const auto shown = [](double side) {
        return side >= 1 && side < 1e15 ? std::to_string(std::llround(side)) : std::string("?");
    };
    return "the picture would be " + shown(width) + " x " + shown(height) +
           " pixels; PNG pictures have at most 32767 a side and 100 million in all";
}

} // namespace

std::string WhyNoRasteriser() {
    return TheRasteriser().isThere ? std::string()
                                   : "librsvg, which makes PNG pictures, is not installed (Debian package "
                                     "librsvg2-2)";
}

Raster DrawPicture(std::string_view svg) {
    Raster raster;
    raster.problem = WhyNoRasteriser();
    if (!raster.problem.empty()) {
        return raster;
    }
    const Document document = Load(svg, raster.problem);
    if (!document) {
        return raster;
    }
    RsvgRectangle place{0, 0, 0, 0};
    TheRasteriser().sizeInPixels(document.get(), &place.width, &place.height);
    raster.problem = ProblemOfSize(place.width, place.height);
    if (!raster.problem.empty()) {
        return raster;
    }
    Canvas canvas(static_cast<int>(std::ceil(place.width)), static_cast<int>(std::ceil(place.height)));
    raster.problem = canvas.Draw(document.get(), place);
    return raster.problem.empty() ? canvas.Take() : raster;
}

Raster DrawPictures(const std::vector<PlacedPicture>& pictures, int width, int height) {
    Raster raster;
    raster.problem = WhyNoRasteriser();
    if (raster.problem.empty()) {
        raster.problem = ProblemOfSize(width, height);
    }
    if (!raster.problem.empty()) {
        return raster;
    }
    Canvas canvas(width, height);
    for (const PlacedPicture& picture : pictures) {
        const Document document = Load(picture.svg, raster.problem);
        if (document) {
            raster.problem = canvas.Draw(document.get(), {double(picture.x), double(picture.y),
                                                          double(picture.width), double(picture.height)});
        }
        if (!raster.problem.empty()) {
            return raster;
        }
    }
    return canvas.Take();
}

// NOLINTEND(clang-analyzer-core.CallAndMessage)

#endif

} // namespace styleconv
