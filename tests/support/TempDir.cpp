#include "tests/support/TempDir.h"

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace test {

TempDir::TempDir() {
    static int counter = 0;
    FPath = (std::filesystem::temp_directory_path() /
             (L"test-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++counter)))
                .wstring();
    std::filesystem::create_directories(FPath);
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(FPath, ignored);
}

std::wstring TempDir::File(std::wstring_view name) const {
    return (std::filesystem::path(FPath) / name).wstring();
}

std::wstring TempDir::Write(std::wstring_view name, std::string_view bytes) const {
    const std::wstring path = File(name);
    std::ofstream(std::filesystem::path(path), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

std::string TempDir::Read(std::wstring_view name) const {
    std::ifstream in(std::filesystem::path(File(name)), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void AgeFile(const std::wstring& fileName) {
    using std::filesystem::last_write_time;
    last_write_time(fileName, last_write_time(fileName) - std::chrono::hours(24));
}

}  // namespace test
