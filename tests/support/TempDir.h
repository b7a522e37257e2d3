#pragma once

#include <string>
#include <string_view>

namespace test {

/// A folder of its own for a test's files, removed with all that is in it.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    /// The folder, without a trailing backslash.
    [[nodiscard]] const std::wstring& Path() const { return FPath; }
    /// The full path of a file in the folder; the file need not exist.
    [[nodiscard]] std::wstring File(std::wstring_view name) const;
    /// Writes a file with these bytes and returns its full path.
    std::wstring Write(std::wstring_view name, std::string_view bytes) const;
    /// The bytes of a file in the folder; empty when there is none.
    [[nodiscard]] std::string Read(std::wstring_view name) const;

private:
    std::wstring FPath;
};

/// Makes the file a day older than it is.
void AgeFile(const std::wstring& fileName);

}  // namespace test
