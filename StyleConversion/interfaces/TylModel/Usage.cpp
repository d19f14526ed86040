#include "TylModel/Usage.h"

namespace TylModel {

PointUsage::~PointUsage() = default;
LineUsage::~LineUsage() = default;
AreaUsage::~AreaUsage() = default;

} // namespace TylModel
