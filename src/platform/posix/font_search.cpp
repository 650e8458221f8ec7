#include "platform/posix/font_face.h"

#include <fontconfig/fontconfig.h>

namespace
{
struct ConfigDeleter {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct FontSetDeleter {
    void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};
using ConfigHandle = std::unique_ptr<FcConfig, ConfigDeleter>;
using PatternHandle = std::unique_ptr<FcPattern, PatternDeleter>;
using FontSetHandle = std::unique_ptr<FcFontSet, FontSetDeleter>;

/// Every installed face, the nearest relative first.
FontSetHandle SortedFaces(FcConfig* config, const char* family, int weight)
{
    const PatternHandle pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(weight));
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultMatch;
    return FontSetHandle(FcFontSort(config, pattern.get(), FcFalse, nullptr, &result));
}
}

std::unique_ptr<FontFace> FontFace::Find(const char* family, int weight, int height, int width)
{
    const ConfigHandle config(FcInitLoadConfigAndFonts());
    if (config == nullptr)
        return nullptr;
    const FontSetHandle faces = SortedFaces(config.get(), family, weight);
    for (int i = 0; faces != nullptr && i < faces->nfont; ++i) {
        FcChar8* path = nullptr;
        int index = 0;
        if (FcPatternGetString(faces->fonts[i], FC_FILE, 0, &path) != FcResultMatch)
            continue;
        FcPatternGetInteger(faces->fonts[i], FC_INDEX, 0, &index);
        auto found = std::make_unique<FontFace>();
        if (found->Open(reinterpret_cast<const char*>(path), index) && found->Scale(height, width))
            return found;
    }
    return nullptr;
}
