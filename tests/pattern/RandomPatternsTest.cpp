// Random pattern files through the library and through the plain second implementation.
#include "LiteralPatterns.h"
#include "PatternTestSupport.h"

#include <random>

namespace {

// An infinite angle has no sine. Where the compiler orders the operands of one implementation otherwise than
// those of the other, as for Windows, the two get what is no number with unlike signs.
#if defined(_WIN32)
constexpr const char* kHugeAngle = "1e9";
#else
constexpr const char* kHugeAngle = "1e999";
#endif

class RandomPatterns : public PatternTest {
protected:
    // A number from 0 to below `limit`.
    unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

    const char* Pick(const std::vector<const char*>& texts) {
        return texts[Below(static_cast<unsigned>(texts.size()))];
    }

    std::string Decimal(unsigned range, unsigned decimals) {
        std::string text = Below(2) == 0 ? "-" : "";
        text += std::to_string(Below(range));
        if (decimals > 0) {
            text += ".";
        }
        for (unsigned i = 0; i < decimals; ++i) {
            text += static_cast<char>('0' + Below(10));
        }
        return text;
    }

    std::string Angle() {
        if (Below(4) == 0) {
            return Decimal(360, 4);
        }
        return Pick({"0", "0", "0", "45", "-45", "135", "90", "180", "30", "60", "120", "15", "26.5650512",
                     "36.8698976", "63.4349488", "0.00005", "-0", kHugeAngle, "360"});
    }

    std::string Length() {
        switch (Below(4)) {
        case 0:
            return Decimal(20, Below(9));
        case 1:
            return Pick({"0.7071068", "1.4142136", "2.8284271", "-0.7071068", "0.8660254", "1.7320508",
                         "0.4472136", "2.236068", "0.00005", "1e-7", "1e300", "-1e999", "x"});
        default:
            return Pick({"0", "0", "1", "-1", "0.5", "-0.5", "0.25", "2", "3", "4", "-0", "10", "0.125"});
        }
    }

    std::string Family() {
        std::string family = Angle();
        const unsigned count = Below(8) == 0 ? Below(5) : 4 + Below(7);
        for (unsigned i = 0; i < count; ++i) {
            family += "," + Length();
        }
        return family;
    }

    // Families that lie on an upright lattice, so that the search for rotated tiles succeeds now and then
    // after many steps: at 45 degrees with shift = spacing, the cycle is 2 * n shifts.
    std::string LatticeFamily() {
        const unsigned n = 1 + Below(600);
        const std::string nudge = Below(2) == 0 ? "" : ".000" + std::to_string(1 + Below(9999));
        return "45," + Length() + "," + Length() + ",1," + (Below(2) == 0 ? "1," : "-1,") +
               std::to_string(n) + ",-" + std::to_string(n) + nudge;
    }

    std::string File() {
        std::string text;
        for (unsigned pattern = 0; pattern < 20; ++pattern) {
            text += "*P" + std::to_string(Below(100)) + ",\n";
            for (unsigned family = Below(8); family > 0; --family) {
                text += (Below(5) == 0 ? LatticeFamily() : Family()) + "\n";
            }
        }
        return text;
    }

private:
    std::mt19937_64 random_{20240611};
};

TEST_F(RandomPatterns, ConvertAsThePlainImplementationConvertsThem) {
    std::size_t symbols = 0;
    for (int round = 0; round < 150; ++round) {
        const std::string text = File();
        const TemporaryFile file(text);
        PatternConverter converter(file.GetName());
        LiteralPatterns literal(text);
        for (int conversion = 0; conversion < 3; ++conversion) {
            const std::vector<std::string> expected = literal.ConvertAll();
            ASSERT_EQ(ConvertAll(converter), expected) << text;
            symbols += expected.size();
        }
    }
    EXPECT_GT(symbols, 5000U); // most patterns become symbols, so that something is compared
}

TEST_F(RandomPatterns, FindTheTilesThatTryingEveryMultipleFinds) {
    std::string text = "*P,\n";
    for (int i = 0; i < 30000; ++i) {
        text += LatticeFamily() + "\n" + Family() + "\n";
    }
    const TemporaryFile file(text);
    PatternConverter converter(file.GetName());
    EXPECT_TRUE(ConvertAll(converter) == LiteralPatterns(text).ConvertAll()); // too long to be printed
}

} // namespace
