// Symbols of any form, to the styles of every map program: what is written is well-formed, and so are the
// pictures in it.
#include "conversions/Forms.h"
#include "conversions/SymbolsDocuments.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Jobs.h"
#include "fuzz/RandomSymbols.h"
#include "fuzz/Xml.h"

#include <string>
#include <string_view>

namespace {

using fuzzing::Require;

// Base64 as the styles have it.
std::string Decoded(std::string_view text) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : text.substr(0, text.find('='))) {
        const std::size_t digit = kDigits.find(c);
        Require(digit != std::string_view::npos, "digits of base64");
        bits = (bits << 6 | static_cast<std::uint32_t>(digit)) & 0xffffff;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> count & 0xff);
        }
    }
    return bytes;
}

void RequireStyle(const std::string& text) {
    Require(fuzzing::IsXml(text), "a style that is XML");
    constexpr std::string_view kStart = "\"base64:";
    for (std::size_t at = text.find(kStart); at != std::string::npos; at = text.find(kStart, at + 1)) {
        const std::size_t start = at + kStart.size();
        Require(fuzzing::IsXml(Decoded(std::string_view(text).substr(start, text.find('"', start) - start))),
                "a picture in a style that is XML");
    }
}

std::string Written(const std::vector<TylModel::SymbolDefinition*>& symbols, conversions::Form form,
                    conversions::StyleJob& styles) {
    std::string text;
    conversions::Front front;
    Require(conversions::WriteSymbols(
                symbols, form,
                [&](std::string_view piece) {
                    text += piece;
                    return true;
                },
                front, encoding::Fidelity::kStrict, {}, &styles),
            "a style that can be written");
    return text;
}

void TryQgis(const conversions::Conversion& conversion, bool inMillimetres, double scale) {
    conversions::StyleJob styles;
    styles.hatchesInMillimetres = inMillimetres;
    styles.scale = scale;
    RequireStyle(Written(conversion.symbols, conversions::Form::kQgis, styles));
    for (TylModel::SymbolDefinition* const symbol : conversion.symbols) {
        RequireStyle(Written({symbol}, conversions::Form::kQml, styles));
    }
}

void TryMaplibre(const conversions::Conversion& conversion, bool allowsApproximate, double scale) {
    conversions::StyleJob styles;
    styles.allowsApproximate = allowsApproximate;
    styles.scale = scale;
    fuzzing::RequireJson(Written(conversion.symbols, conversions::Form::kMaplibre, styles));
    for (const conversions::StylePicture& picture : styles.pictures) {
        Require(fuzzing::IsXml(picture.svg), "a picture that is XML");
        Require(picture.width > 0 && picture.width <= 1024 && picture.height > 0 && picture.height <= 1024,
                "a picture of a size that a map program takes");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string document = fuzzing::RandomSymbolsDocument(data, size);
    conversions::Front front;
    const conversions::Conversion conversion =
        conversions::ConvertSymbols(fuzzing::InputOf(document), false, front);
    Require(conversion.isConverted, "symbols that are read");
    TryQgis(conversion, size % 2 == 1, 1.0);
    TryMaplibre(conversion, size % 2 == 1, size % 3 == 1 ? 0.01 : 1.0);
    return 0;
}
