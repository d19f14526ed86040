// Every step in the order in which a person would explain it.
#include "LiteralPatterns.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <tuple>

namespace {

std::string Number(double value) {
    // Not every C library shows the sign of what is no number; it is shown here.
    if (std::isnan(value)) {
        return std::signbit(value) ? "-nan" : "nan";
    }
    char buffer[400];
    const int length = std::snprintf(buffer, sizeof buffer, "%.5f", value);
    std::string text(buffer, static_cast<std::size_t>(length));
    for (int back = 1; back <= 4 && back <= length; ++back) {
        const auto position = static_cast<std::size_t>(length - back);
        if (buffer[position] == '0') {
            text = text.substr(0, position);
        }
    }
    return text;
}

bool NearWhole(double value) {
    return std::fabs(value - std::floor(value + 0.5)) < 0.0001;
}

double Radians(double degrees) {
    return degrees * 0.017453292519943295;
}

} // namespace

LiteralPatterns::LiteralPatterns(const std::string& text) {
    std::istringstream stream(text);
    std::string line;
    std::string current;
    while (std::getline(stream, line)) {
        if (line.empty() || line[0] == ';') {
            continue;
        }
        if (line[0] == '*') {
            current = line.substr(1, line.find(',') - 1);
            patterns_.insert({current, {}});
        } else if (patterns_.count(current) != 0) {
            patterns_[current].push_back(ParseFamily(line));
        }
    }
}

LiteralPatterns::Family LiteralPatterns::ParseFamily(const std::string& line) {
    std::vector<double> numbers;
    std::string rest = line + ",";
    while (!rest.empty()) {
        const std::size_t comma = rest.find(',');
        numbers.push_back(std::strtod(rest.substr(0, comma).c_str(), nullptr));
        rest = rest.substr(comma + 1);
    }
    while (numbers.size() < 5) {
        numbers.push_back(0);
    }
    Family family{numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], 10, 10, {}, 1, 0, false};
    if (family.spacing == 0) {
        family.spacing = 10.0;
    }
    std::vector<double>& dashes = family.dashes;
    dashes.assign(numbers.begin() + 5, numbers.end());
    for (int i = static_cast<int>(dashes.size()) - 1; i >= 1; --i) {
        double& before = dashes[static_cast<std::size_t>(i - 1)];
        const double here = dashes[static_cast<std::size_t>(i)];
        if ((before < 0 && here < 0) || (before >= 0 && here >= 0)) {
            before = before + here;
            dashes.erase(dashes.begin() + i);
        }
    }
    for (const double dash : dashes) {
        family.dashTotal = family.dashTotal + std::fabs(dash);
    }
    double x = dashes.size() >= 2 ? family.offset : 0;
    if (family.dashTotal == 0) {
        dashes.clear();
        family.dashTotal = 10.0;
        x = 0;
    }
    family.offset = std::fmod(x, family.dashTotal);
    if (family.offset < 0) {
        family.offset = family.offset + family.dashTotal;
    }
    if (family.offset == 0) {
        family.repeatX = family.dashTotal;
        family.repeatY = family.spacing;
    } else if (!SearchRotated(family) && !SearchStacked(family)) {
        family.rowCount = -1;
    }
    return family;
}

bool LiteralPatterns::SearchRotated(Family& family) {
    const double c = std::cos(Radians(family.angle));
    const double s = std::sin(Radians(family.angle));
    const double d = family.offset;
    const double h = family.spacing;
    const double t = family.dashTotal;
    if (d == 0 || c == 0 || s == 0) {
        return false;
    }
    const double p = h * c + d * s;
    const double q = -p / (t * s);
    bool foundX = false;
    double rx = 0;
    for (int n = 1; n <= 511 && !foundX; ++n) {
        const double v = n * q;
        if (NearWhole(v)) {
            foundX = true;
            rx = (d * c - h * s) * n + t * c * v;
        }
    }
    const double r = -(d * c - h * s) / (t * c);
    bool foundY = false;
    double ry = 0;
    for (int m = 1; m <= 511 && !foundY; ++m) {
        const double w = m * r;
        if (NearWhole(w)) {
            foundY = true;
            ry = m * p + t * s * w;
        }
    }
    if (!foundX || !foundY || !(std::fabs(std::fabs(t * h / (ry * rx)) - 1) < 0.0001)) {
        return false;
    }
    family.repeatX = rx;
    family.repeatY = ry;
    family.rotatedTile = true;
    return true;
}

bool LiteralPatterns::SearchStacked(Family& family) {
    const double d = family.offset;
    const double t = family.dashTotal;
    if (d == 0) {
        return false;
    }
    double acc = 0;
    double best = DBL_MAX;
    int rows = 1;
    for (int n = 1; n <= 64; ++n) {
        acc = acc + d;
        const double e = std::fabs(acc - t);
        if (e < best) {
            best = e;
            rows = n;
        }
        if (e < 0.0001) {
            break;
        }
        if (acc >= t) {
            acc = acc - t;
        }
    }
    if (!(best < d * 0.25)) {
        return false;
    }
    family.rowCount = rows;
    family.repeatX = t;
    family.repeatY = rows * family.spacing;
    return true;
}

std::string LiteralPatterns::Draw(Family& family) {
    if (!family.rotatedTile) {
        const double c = std::cos(Radians(-family.angle));
        const double s = std::sin(Radians(-family.angle));
        const double x = family.originX * c - family.originY * s;
        const double y = family.originX * s + family.originY * c;
        family.originX = x;
        family.originY = y;
    }
    const double ox = family.originX;
    const double oy = family.originY;
    const double c = std::cos(Radians(family.angle));
    const double s = std::sin(Radians(family.angle));
    const auto turned = [&](double x, double y) {
        return Number((x - ox) * c - (y - oy) * s + ox) + "," + Number((x - ox) * s + (y - oy) * c + oy);
    };
    std::string path;
    for (int k = 0; k < family.rowCount; ++k) {
        if (!path.empty() && path.back() != ' ') {
            path += " ";
        }
        double x = k * family.offset + ox;
        const double y = k * family.spacing + oy;
        for (const double d : family.dashes) {
            if (d >= 0) {
                if (!path.empty() && path.back() != ' ') {
                    path += " ";
                }
                if (family.rotatedTile) {
                    path += "M " + turned(x, y) + " L " + turned(x + d, y);
                } else {
                    path += "M " + Number(x) + "," + Number(y) + " h " + Number(d);
                }
            }
            x = x + std::fabs(d);
        }
        if (family.dashes.empty()) {
            path += "M " + Number(x) + "," + Number(y) + " h " + Number(family.repeatX);
        }
    }
    return path;
}

std::string LiteralPatterns::Build(const std::string& name, std::vector<Family>& families) {
    const auto angleOf = [](const Family& family) { return family.rotatedTile ? 0.0 : family.angle; };
    std::stable_sort(families.begin(), families.end(), [&](const Family& a, const Family& b) {
        return std::tuple(!a.rotatedTile, angleOf(a), std::fabs(a.repeatX), std::fabs(a.repeatY)) <
               std::tuple(!b.rotatedTile, angleOf(b), std::fabs(b.repeatX), std::fabs(b.repeatY));
    });
    std::vector<std::string> groups;
    std::string path;
    double previousAngle = 0;
    double previousX = 0;
    double previousY = 0;
    for (Family& family : families) {
        if (family.rowCount < 0) {
            continue;
        }
        const double a = angleOf(family);
        const double rx = std::fabs(family.repeatX);
        const double ry = std::fabs(family.repeatY);
        if (std::fabs(a - previousAngle) < 0.0001 && std::fabs(rx - previousX) < 0.0001 &&
            std::fabs(ry - previousY) < 0.0001) {
            const std::string p = Draw(family);
            if (!p.empty() && p.front() != ' ') {
                path += " ";
            }
            path += p;
        } else {
            if (!path.empty() && !groups.empty()) {
                groups.back() += "path " + path + "\n";
            }
            groups.push_back("area %HATCHANGLE%" + (a == 0 ? "" : "+" + Number(a)) + " " + Number(rx) + " " +
                             Number(ry) + "\n");
            path = Draw(family);
        }
        previousAngle = a;
        previousX = rx;
        previousY = ry;
    }
    if (groups.empty()) {
        return "";
    }
    groups.back() += "path " + path + "\n";
    std::string text = (groups.size() == 1 ? "simple " : "compound ") + name + "\n";
    for (const std::string& group : groups) {
        text += group;
    }
    return text;
}

std::vector<std::string> LiteralPatterns::ConvertAll() {
    std::vector<std::string> symbols;
    for (auto& [name, families] : patterns_) {
        std::string symbol = Build(name, families);
        if (!symbol.empty()) {
            symbols.push_back(std::move(symbol));
        }
    }
    return symbols;
}
