#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Persistent.h"

namespace vcl {

class TCanvas;
class TStream;

/// A picture of some kind: a bitmap, an icon, a JPEG.
class TGraphic : public TPersistent {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after each change of the picture.
    TNotifyEvent OnChange;

    /// Draws the picture into the rectangle, scaled to it.
    virtual void Draw(TCanvas& canvas, const TRect& rect) const = 0;
    /// True when there is no pixel.
    [[nodiscard]] virtual bool GetEmpty() const = 0;
    /// The size in pixels. Setting it raises EInvalidGraphicOperation where the kind has a fixed size.
    [[nodiscard]] virtual int GetWidth() const = 0;
    [[nodiscard]] virtual int GetHeight() const = 0;
    virtual void SetWidth(int value) = 0;
    virtual void SetHeight(int value) = 0;
    /// Whether drawing leaves out the transparent part.
    [[nodiscard]] virtual bool GetTransparent() const { return FTransparent; }
    virtual void SetTransparent(bool value);
    /// True when the picture was changed since it was made or loaded, or the mark was cleared.
    [[nodiscard]] bool GetModified() const { return FModified; }
    void SetModified(bool value);
    /// An empty picture of the same kind.
    [[nodiscard]] virtual std::unique_ptr<TGraphic> NewOfKind() const = 0;

    /// Reads the picture from the bytes of a file of its kind. Raises EInvalidGraphic when they are of
    /// another kind or damaged; the picture then stays as it was.
    virtual void LoadFromBytes(std::span<const std::byte> bytes) = 0;
    /// The bytes of a file of its kind.
    [[nodiscard]] virtual std::vector<std::byte> SaveToBytes() const = 0;
    /// Reads all that is left in the stream; it must be a picture as `LoadFromBytes` takes it.
    void LoadFromStream(TStream& stream);
    void SaveToStream(TStream& stream) const;
    /// Raises EFOpenError or EFCreateError when the file can't be opened or made.
    void LoadFromFile(const String& fileName);
    void SaveToFile(const String& fileName) const;

    /// Tells that the picture changed: marks it modified and raises `OnChange`. For those that wrote to the
    /// picture's memory.
    virtual void Changed();

protected:
    friend class TPicture;

    /// The picture's bytes, as `Data`.
    void DefineProperties(TFiler& filer) override;
    /// Reads and writes the picture as form files hold it: the bytes of a file of its kind, after their
    /// length where the kind says so.
    void ReadData(TStream& stream);
    void WriteData(TStream& stream) const;
    [[nodiscard]] virtual bool HasLengthInForms() const { return false; }
    /// Takes over whether another picture is transparent, without telling.
    void TakeTransparent(const TGraphic& source) { FTransparent = source.FTransparent; }

private:
    bool FTransparent = false;
    bool FModified = false;
};

}  // namespace vcl
