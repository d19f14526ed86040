// A second implementation of pattern conversion, written for plainness: it searches every multiple, copies
// and erases, and formats with the C library. The random tests compare the library with it.
#pragma once

#include <map>
#include <string>
#include <vector>

class LiteralPatterns {
public:
    explicit LiteralPatterns(const std::string& text);

    /// What Describe says of each symbol, in order. As in the library, converting turns origins.
    std::vector<std::string> ConvertAll();

private:
    struct Family {
        double angle, originX, originY, offset, spacing, repeatX, repeatY;
        std::vector<double> dashes;
        int rowCount;
        double dashTotal;
        bool rotatedTile;
    };

    static Family ParseFamily(const std::string& line);
    static bool SearchRotated(Family& family);
    static bool SearchStacked(Family& family);
    static std::string Draw(Family& family);
    static std::string Build(const std::string& name, std::vector<Family>& families);

    std::map<std::string, std::vector<Family>> patterns_;
};
