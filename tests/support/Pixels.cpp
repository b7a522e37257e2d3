#include "tests/support/Pixels.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace test {
namespace {

constexpr int ListedDifferences = 8;
constexpr int MapColumns = 96;
constexpr int MapRows = 48;

/// Which pixels differ; every cell of the printed map stands for a block of equal size.
class Difference {
public:
    Difference(const Pixels& actual, const Pixels& expected) : FActual(actual), FExpected(expected) {
        for (int y = 0; y < FActual.Height(); ++y)
            for (int x = 0; x < FActual.Width(); ++x)
                if (Differs(x, y)) FPlaces.push_back({x, y});
    }
    [[nodiscard]] bool IsEmpty() const { return FPlaces.empty(); }
    void Describe(std::ostream& out) const {
        out << FPlaces.size() << " of " << FActual.Width() * FActual.Height() << " pixels differ ("
            << FActual.Width() << " x " << FActual.Height() << "):\n";
        for (std::size_t i = 0; i < FPlaces.size() && i < ListedDifferences; ++i) {
            const auto [x, y] = FPlaces[i];
            out << "  (" << x << ", " << y << ") is " << ColorText(FActual.At(x, y)) << ", expected "
                << ColorText(FExpected.At(x, y)) << "\n";
        }
        Map(out);
    }
    [[nodiscard]] Pixels Picture() const {
        return {FActual.Width(), FActual.Height(),
                [this](int x, int y) { return Differs(x, y) ? RGB(255, 0, 0) : RGB(255, 255, 255); }};
    }

private:
    [[nodiscard]] bool Differs(int x, int y) const { return FActual.At(x, y) != FExpected.At(x, y); }

    void Map(std::ostream& out) const {
        const int cellX = (FActual.Width() + MapColumns - 1) / MapColumns;
        const int cellY = (FActual.Height() + MapRows - 1) / MapRows;
        const int cell = std::max({cellX, cellY, 1});
        std::vector<std::string> rows(
            static_cast<std::size_t>((FActual.Height() + cell - 1) / cell),
            std::string(static_cast<std::size_t>((FActual.Width() + cell - 1) / cell), '.'));
        for (const POINT& p : FPlaces)
            rows[static_cast<std::size_t>(p.y / cell)][static_cast<std::size_t>(p.x / cell)] = '#';
        out << "  map, " << cell << " x " << cell << " pixels a character:\n";
        for (const std::string& row : rows)
            out << "  " << row << "\n";
    }

    const Pixels& FActual;
    const Pixels& FExpected;
    std::vector<POINT> FPlaces;
};

/// The start of the names of the running test's next picture files.
std::filesystem::path NextPictureName() {
    static int counter = 0;
    const char* folder = std::getenv("TEST_PICTURES");
    const std::filesystem::path base =
        folder ? std::filesystem::path(folder) : std::filesystem::temp_directory_path();
    std::error_code ignored;
    std::filesystem::create_directories(base, ignored);
    const testing::TestInfo* info = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = info ? std::string(info->test_suite_name()) + "." + info->name() : "picture";
    std::replace(name.begin(), name.end(), '/', '-');
    return base / (name + "-" + std::to_string(++counter));
}

void SavePictures(const Pixels& actual, const Pixels& expected, const Pixels& difference, std::ostream& out) {
    const std::wstring name = NextPictureName().wstring();
    actual.SavePpm(name + L"-actual.ppm");
    expected.SavePpm(name + L"-expected.ppm");
    difference.SavePpm(name + L"-difference.ppm");
    out << "  pictures: " << std::filesystem::path(name).string() << "-{actual,expected,difference}.ppm";
}

}  // namespace

Pixels::Pixels(int width, int height, COLORREF fill)
    : FWidth(width), FHeight(height), FData(static_cast<std::size_t>(width) * height, fill) {}

Pixels::Pixels(int width, int height, const std::function<COLORREF(int x, int y)>& color)
    : Pixels(width, height) {
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            Set(x, y, color(x, y));
}

COLORREF Pixels::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= FWidth || y >= FHeight) return CLR_INVALID;
    return FData[static_cast<std::size_t>(y) * FWidth + x];
}

void Pixels::Set(int x, int y, COLORREF color) {
    FData.at(static_cast<std::size_t>(y) * FWidth + x) = color & 0xFFFFFF;
}

Pixels Pixels::Part(const RECT& rect) const {
    const RECT all{0, 0, FWidth, FHeight};
    RECT cut;
    if (!IntersectRect(&cut, &all, &rect)) return {};
    return {cut.right - cut.left, cut.bottom - cut.top,
            [&](int x, int y) { return At(cut.left + x, cut.top + y); }};
}

int Pixels::Count(COLORREF color) const {
    return static_cast<int>(std::count(FData.begin(), FData.end(), color & 0xFFFFFF));
}

RECT Pixels::Bounds(const std::function<bool(COLORREF)>& condition) const {
    RECT bounds{};
    for (int y = 0; y < FHeight; ++y)
        for (int x = 0; x < FWidth; ++x)
            if (condition(At(x, y))) {
                const RECT pixel{x, y, x + 1, y + 1};
                UnionRect(&bounds, &bounds, &pixel);
            }
    return bounds;
}

void Pixels::SavePpm(const std::wstring& path) const {
    std::ofstream out(std::filesystem::path(path), std::ios::binary);
    out << "P6\n" << FWidth << " " << FHeight << "\n255\n";
    for (const COLORREF color : FData)
        out.put(static_cast<char>(GetRValue(color)))
            .put(static_cast<char>(GetGValue(color)))
            .put(static_cast<char>(GetBValue(color)));
}

testing::AssertionResult SamePixels(const Pixels& actual, const Pixels& expected) {
    if (actual.Width() != expected.Width() || actual.Height() != expected.Height())
        return testing::AssertionFailure()
               << "the picture has " << actual.Width() << " x " << actual.Height() << " pixels, expected "
               << expected.Width() << " x " << expected.Height();
    const Difference difference(actual, expected);
    if (difference.IsEmpty()) return testing::AssertionSuccess();
    std::ostringstream message;
    difference.Describe(message);
    SavePictures(actual, expected, difference.Picture(), message);
    return testing::AssertionFailure() << message.str();
}

testing::AssertionResult SamePixels(const Pixels& actual,
                                    const std::function<COLORREF(int x, int y)>& expected) {
    return SamePixels(actual, Pixels(actual.Width(), actual.Height(), expected));
}

std::string ColorText(COLORREF color) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(color));
    return text;
}

}  // namespace test
