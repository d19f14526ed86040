// Degrees and radians.
#pragma once

namespace encoding {

inline constexpr double kDegreesPerRadian = 57.29577951308232;
inline constexpr double kRadiansPerDegree = 0.017453292519943295;

} // namespace encoding
