// Values as the symbol model takes them, scaled to millimetres.
#include "StyleConversion/block/BlockConverter.h"

#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/encoding/ScaledPath.h"
#include "StyleConversion/encoding/TrimmedNumber.h"
#include "StyleConversion/encoding/ValueForms.h"
#include "StyleConversion/interfaces/HostNames.h"

std::wstring BlockConverter::Double2TylString(double value) const {
    return encoding::Double2TrimmedString(value * scale_);
}

std::wstring BlockConverter::Point2TylString(const OxGePoint2d& point) const {
    std::wstring text;
    encoding::AppendPoint(text, L"", {point.x, point.y}, scale_);
    return text;
}

std::wstring BlockConverter::Int2TylString(std::int32_t value) const {
    return encoding::IntegerString(value);
}

std::wstring BlockConverter::Lineweight2TylString(int lineWeight) const {
    if (block::IsFaithful()) {
        // A weight that is left to the default is that of most drawings.
        constexpr int kDefaultWeight = 25;
        return encoding::Double2TrimmedString((lineWeight < 0 ? kDefaultWeight : lineWeight) / 100.0);
    }
    return encoding::LineweightString(lineWeight);
}

std::wstring BlockConverter::Color2TylString(const OxCmColor& color) const {
    return encoding::ColorString(
        static_cast<std::uint32_t>(OxCmEntityColor::trueColor(host::PackedColor(color))));
}

void BlockConverter::AppendLineToString(std::wstring* path, const OxGePoint2d& from,
                                        const OxGePoint2d& to) const {
    encoding::AppendLineToString(*path, {from.x, from.y}, {to.x, to.y}, scale_);
}

void BlockConverter::AppendArcString(std::wstring* path, double radiusX, double radiusY, double rotation,
                                     bool largeArc, bool sweep, const OxGePoint2d& end) const {
    encoding::AppendArcString(*path, radiusX, radiusY, rotation, largeArc, sweep, {end.x, end.y}, scale_);
}
