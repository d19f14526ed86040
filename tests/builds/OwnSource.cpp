// The host's own way of writing: -Wconversion, -Wshadow and -Wextra would warn here, and its warnings are
// errors.
#include <OxDb/OxDb.h>

static double value = 2.75;

int Truncated(int unused);

int Truncated(int unused) {
    double value = ::value;
    int whole = value;
    return whole;
}

// Values compare as in every standard since C++17.
static_assert(OxDbObjectId() == OxDbObjectId() && !(OxDbObjectId() != OxDbObjectId()), "ids compare");

bool Differ(const OxGePoint3d& a, const OxGePoint3d& b, const OxCmColor& c, const OxCmColor& d);

bool Differ(const OxGePoint3d& a, const OxGePoint3d& b, const OxCmColor& c, const OxCmColor& d) {
    return a != b || !(a == b) || c != d || !(c == d);
}
