// Colours of entities and layers.
#pragma once

#include "OxDb/Export.h"

#include <cstdint>

/// Works on colours packed into 32 bits: how the colour is given in bits 24 to 31, its value below.
class OXDB_API OxCmEntityColor {
public:
    /// How a colour is given; the number is the top byte of the packed value.
    enum ColorMethod : std::uint8_t {
        kByLayer = 0xC0, ///< The colour of the layer.
        kByBlock = 0xC1, ///< The colour of the insert.
        /// Bits 16-23 red, 8-15 green, 0-7 blue.
        kByColor = 0xC2,
        /// Bits 0-7 are an index from 1 to 255 into the standard palette.
        kByIndex = 0xC3,
    };

    /// The top byte, which may be none of the listed ones.
    static ColorMethod colorMethod(std::uint32_t packedColor) {
        return static_cast<ColorMethod>(packedColor >> 24U);
    }

    /// The true colour of a packed colour: red in bits 16-23, green in 8-15, blue in 0-7, nothing above.
    /// Indices go through the standard palette. By layer, by block and what is no colour at all give 0,
    /// black: only a look at the drawing can tell more.
    static std::uint32_t trueColor(std::uint32_t packedColor);
};

/// A colour by layer, by block, by index of the standard palette, or given as red, green and blue. Copies are
/// independent values. A fresh one is black.
class OXDB_API OxCmColor {
public:
    OxCmColor() = default;

    /// Whether the colour is the layer's, or that of the insert of the block.
    bool isByLayer() const { return OxCmEntityColor::colorMethod(packed_) == OxCmEntityColor::kByLayer; }
    bool isByBlock() const { return OxCmEntityColor::colorMethod(packed_) == OxCmEntityColor::kByBlock; }

    /// Make it so.
    void setByLayer() { packed_ = Pack(OxCmEntityColor::kByLayer, 0); }
    void setByBlock() { packed_ = Pack(OxCmEntityColor::kByBlock, 0); }
    /// Index from 1 to 255 of the standard palette.
    void setColorIndex(std::uint8_t index) { packed_ = Pack(OxCmEntityColor::kByIndex, index); }
    /// A true colour; the colour is then neither by layer nor by block.
    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
        packed_ = Pack(OxCmEntityColor::kByColor, (static_cast<std::uint32_t>(red) << 16U) |
                                                      (static_cast<std::uint32_t>(green) << 8U) | blue);
    }

    /// The packed value that OxCmEntityColor works on.
    std::uint32_t entityColor() const { return packed_; }

    /// Exactly, the way that it is given included.
    bool operator==(const OxCmColor& other) const { return packed_ == other.packed_; }
    bool operator!=(const OxCmColor& other) const { return !(*this == other); }

private:
    static constexpr std::uint32_t Pack(OxCmEntityColor::ColorMethod method, std::uint32_t value) {
        return (static_cast<std::uint32_t>(method) << 24U) | value;
    }

    std::uint32_t packed_ = Pack(OxCmEntityColor::kByColor, 0);
};
