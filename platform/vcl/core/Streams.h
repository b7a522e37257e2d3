#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

enum class TSeekOrigin { soBeginning, soCurrent, soEnd };
using enum TSeekOrigin;

/// A sequence of bytes with a position that reading and writing move on. Sizes and positions are in bytes.
class TStream : public TObject {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Reads up to `count` bytes and returns how many it were; fewer only at the end.
    virtual std::size_t Read(void* buffer, std::size_t count) = 0;
    /// Writes up to `count` bytes and returns how many it were; raises EStreamError in a stream for reading
    /// only.
    virtual std::size_t Write(const void* buffer, std::size_t count) = 0;
    /// Moves the position, also beyond the end, and returns it from the beginning. Raises EStreamError when
    /// it would lie before the beginning.
    virtual std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) = 0;
    [[nodiscard]] virtual std::int64_t GetSize() const = 0;
    /// Cuts the stream off, or appends bytes (zeros in memory). A position beyond the new end moves there.
    virtual void SetSize(std::int64_t size) = 0;

    [[nodiscard]] std::int64_t GetPosition() const;
    void SetPosition(std::int64_t position) { Seek(position, soBeginning); }
    /// Reads all of `count` bytes; raises EReadError "Stream read error" when there are fewer.
    void ReadBuffer(void* buffer, std::size_t count);
    /// Writes all of `count` bytes; raises EWriteError "Stream write error" when that fails.
    void WriteBuffer(const void* buffer, std::size_t count);
    /// Copies `count` bytes from the source's position, or all of it from its beginning when `count` is 0;
    /// returns how many. Raises EReadError when the source holds fewer.
    std::int64_t CopyFrom(TStream& source, std::int64_t count);
};

/// A stream over bytes in memory that somebody else provides; reading only.
class TCustomMemoryStream : public TStream {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    std::size_t Read(void* buffer, std::size_t count) override;
    std::size_t Write(const void* buffer, std::size_t count) override;
    std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) override;
    [[nodiscard]] std::int64_t GetSize() const override { return static_cast<std::int64_t>(FBytes.size()); }
    void SetSize(std::int64_t size) override;
    /// All bytes, wherever the position is; valid until the stream changes.
    [[nodiscard]] std::span<const std::byte> GetMemory() const { return FBytes; }
    void SaveToStream(TStream& stream) const;
    void SaveToFile(const String& fileName) const;

protected:
    TCustomMemoryStream() = default;
    void SetBytes(std::span<const std::byte> bytes) { FBytes = bytes; }
    std::size_t FPosition = 0;

private:
    std::span<const std::byte> FBytes;
};

/// A stream in memory that grows as it is written.
class TMemoryStream : public TCustomMemoryStream {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    std::size_t Write(const void* buffer, std::size_t count) override;
    void SetSize(std::int64_t size) override;
    void Clear() { SetSize(0); }
    /// Takes over the whole of another stream, from its beginning; the position is 0 afterwards.
    void LoadFromStream(TStream& stream);
    void LoadFromFile(const String& fileName);

private:
    std::vector<std::byte> FStorage;
};

/// A stream over a resource of a module; reading only. The module must stay loaded.
class TResourceStream : public TCustomMemoryStream {
public:
    /// Raises EResNotFound "Resource <name> not found". `type` is a resource type such as RT_RCDATA.
    TResourceStream(HINSTANCE module, const String& name, const wchar_t* type);

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// How `TFileStream` opens a file: one of the first four, and one of the sharing modes added to it.
enum TFileMode : std::uint16_t {
    fmOpenRead = 0x0000,
    fmOpenWrite = 0x0001,
    fmOpenReadWrite = 0x0002,
    fmCreate = 0xFF00,  ///< Makes the file, or empties the one that is there; for reading and writing.
    fmShareExclusive = 0x0010,
    fmShareDenyWrite = 0x0020,
    fmShareDenyRead = 0x0030,
    fmShareDenyNone = 0x0040,
};

/// A stream in a file, which it closes at its end.
class TFileStream : public TStream {
public:
    /// Raises EFOpenError (`Cannot open file "name". ` and the system's text), or EFCreateError ("Cannot
    /// create ...").
    TFileStream(const String& fileName, unsigned mode);
    ~TFileStream() override;

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] const String& GetFileName() const { return FFileName; }
    std::size_t Read(void* buffer, std::size_t count) override;
    std::size_t Write(const void* buffer, std::size_t count) override;
    std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) override;
    [[nodiscard]] std::int64_t GetSize() const override;
    void SetSize(std::int64_t size) override;

private:
    String FFileName;
    HANDLE FHandle;
};

}  // namespace vcl
