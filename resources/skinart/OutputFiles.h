#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace skinart {

/// A file that the program writes: its path below the output folder, with forward slashes, and its bytes.
struct OutputFile {
    std::string Path;
    std::string Bytes;
};

/// Everything: `bitmaps/*.bmp`, `icons/*.bmp`, and the resource scripts `skin.rc` and `icons.rc` that name
/// them.
std::vector<OutputFile> DrawEverything();

/// Writes the files below `folder`, leaving alone those that already have the right bytes.
void WriteFiles(const std::vector<OutputFile>& files, const std::filesystem::path& folder);

/// What differs below `folder`, a line each: missing and changed files, and bitmaps that nothing names.
std::vector<std::string> CompareFiles(const std::vector<OutputFile>& files,
                                      const std::filesystem::path& folder);

/// Writes one file; throws std::runtime_error when that fails.
void WriteBytes(const std::filesystem::path& path, const std::string& bytes);

}  // namespace skinart
