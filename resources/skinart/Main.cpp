#include <exception>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "resources/skinart/BmpFile.h"
#include "resources/skinart/ContactSheet.h"
#include "resources/skinart/OutputFiles.h"

namespace {

constexpr std::string_view kUsage =
    "skinart FOLDER          writes the bitmaps and their resource scripts into FOLDER\n"
    "skinart --check FOLDER  compares FOLDER with what would be written\n"
    "skinart --sheet FILE    writes a contact sheet of everything as a bitmap file\n";

int Check(const std::string& folder) {
    const auto differences = skinart::CompareFiles(skinart::DrawEverything(), folder);
    for (const std::string& difference : differences)
        std::cout << difference << '\n';
    return differences.empty() ? 0 : 1;
}

int Run(std::span<char*> arguments) {
    const std::string_view first = arguments.empty() ? "" : arguments[0];
    if (arguments.size() == 1 && !first.starts_with("-")) {
        skinart::WriteFiles(skinart::DrawEverything(), first);
        return 0;
    }
    if (arguments.size() == 2 && first == "--check") return Check(arguments[1]);
    if (arguments.size() == 2 && first == "--sheet") {
        skinart::WriteBytes(arguments[1], skinart::EncodeBmp24(skinart::DrawContactSheet()));
        return 0;
    }
    std::cerr << kUsage;
    return 2;
}

}  // namespace

int main(int argc, char* argv[]) {
    try {
        return Run(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    } catch (const std::exception& error) {
        std::cerr << "skinart: " << error.what() << '\n';
        return 1;
    }
}
