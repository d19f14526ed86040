#include "TylModel/Parameter.h"

namespace TylModel {

Parameter::~Parameter() = default;

} // namespace TylModel
