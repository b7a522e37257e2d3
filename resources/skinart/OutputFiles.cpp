#include "resources/skinart/OutputFiles.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <utility>

#include "resources/skinart/BmpFile.h"
#include "resources/skinart/Catalogue.h"

namespace skinart {

namespace fs = std::filesystem;

namespace {

using Encoder = std::string (*)(const Picture&);

// The bitmaps of one resource script.
struct Script {
    std::string File;
    std::string Folder;
    std::string Language;
    Encoder Encode;
};

void Append(std::vector<OutputFile>& files, const Catalogue& catalogue, const Script& script) {
    std::string lines = "// Written by resources/skinart. Change the drawing there and run it again.\n" +
                        script.Language + "\n\n";
    for (const auto& [name, image] : catalogue.Pictures()) {
        const std::string path = script.Folder + "/" + name + ".bmp";
        files.push_back({path, script.Encode(image)});
        lines += name + " BITMAP \"" + path + "\"\n";
    }
    files.push_back({script.File, std::move(lines)});
}

std::optional<std::string> ReadBytes(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}

std::vector<std::string> StrayBitmaps(const std::vector<OutputFile>& files, const fs::path& folder) {
    std::vector<std::string> strays;
    for (const char* const name : {"bitmaps", "icons"}) {
        if (!fs::is_directory(folder / name)) continue;
        for (const auto& entry : fs::directory_iterator(folder / name)) {
            const std::string path = std::string(name) + "/" + entry.path().filename().string();
            if (std::ranges::find(files, path, &OutputFile::Path) == files.end()) strays.push_back(path);
        }
    }
    std::ranges::sort(strays);
    return strays;
}

}  // namespace

std::vector<OutputFile> DrawEverything() {
    std::vector<OutputFile> files;
    Append(files, DrawSkin(), {"skin.rc", "bitmaps", "LANGUAGE 0x00, 0x00  // neutral", EncodeBmp24});
    Append(files, DrawIcons(), {"icons.rc", "icons", "LANGUAGE 0x07, 0x01  // German", EncodeBmp4});
    return files;
}

void WriteBytes(const fs::path& path, const std::string& bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + path.string());
}

void WriteFiles(const std::vector<OutputFile>& files, const fs::path& folder) {
    for (const auto& [path, bytes] : files) {
        const fs::path target = folder / path;
        if (ReadBytes(target) == bytes) continue;
        fs::create_directories(target.parent_path());
        WriteBytes(target, bytes);
    }
}

std::vector<std::string> CompareFiles(const std::vector<OutputFile>& files, const fs::path& folder) {
    std::vector<std::string> differences;
    for (const auto& [path, bytes] : files) {
        const std::optional<std::string> found = ReadBytes(folder / path);
        if (!found)
            differences.push_back("missing: " + path);
        else if (*found != bytes)
            differences.push_back("differs: " + path);
    }
    for (const std::string& path : StrayBitmaps(files, folder))
        differences.push_back("named nowhere: " + path);
    return differences;
}

}  // namespace skinart
