#pragma once

#include <functional>
#include <memory>

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Graphic.h"
#include "platform/vcl/graphics/Icon.h"

namespace vcl {

/// Holds a picture of any kind and owns it.
class TPicture : public TPersistent {
public:
    using Factory = std::function<std::unique_ptr<TGraphic>()>;

    TPicture() = default;
    ~TPicture() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after each change of the picture or of what it holds.
    TNotifyEvent OnChange;

    /// Takes over another picture's contents, or a graphic as `SetGraphic` does; null empties.
    void Assign(const TPersistent* source) override;
    /// What the picture holds, or null.
    [[nodiscard]] TGraphic* GetGraphic() const { return FGraphic.get(); }
    /// Copies the graphic (bitmaps share their pixels until one changes); null empties.
    void SetGraphic(const TGraphic* value);
    /// The bitmap that the picture holds; whatever else it held is replaced by an empty bitmap first.
    [[nodiscard]] TBitmap& GetBitmap();
    void SetBitmap(const TBitmap* value) { SetGraphic(value); }
    /// The icon that the picture holds; whatever else it held is replaced by an empty icon first.
    [[nodiscard]] TIcon& GetIcon();
    /// The size of the graphic in pixels, 0 without one.
    [[nodiscard]] int GetWidth() const { return FGraphic ? FGraphic->GetWidth() : 0; }
    [[nodiscard]] int GetHeight() const { return FGraphic ? FGraphic->GetHeight() : 0; }

    /// Loads a file of the kind that is registered for its extension. Raises EInvalidGraphic "Unknown picture
    /// file extension (.%s)" for others, and what loading raises; the picture then stays as it was.
    void LoadFromFile(const String& fileName);
    /// Writes what the picture holds, in its own format; nothing without a graphic.
    void SaveToFile(const String& fileName) const;

    /// Makes files of an extension (without the dot, in any case) loadable: `bmp`, `jpg`, `jpeg`, `png` and
    /// `ico` are known from the start.
    static void RegisterFileFormat(const String& extension, Factory factory);

protected:
    /// The class of what the picture holds and its bytes, as `Data`.
    void DefineProperties(TFiler& filer) override;
    void AssignTo(TPersistent* dest) const override;

private:
    void ReadData(TStream& stream);
    void WriteData(TStream& stream) const;
    [[nodiscard]] bool IsSameAs(const TPicture& other) const;
    void Take(std::unique_ptr<TGraphic> graphic);
    void GraphicChanged(TObject* sender);
    template <class T>
    T& Force();

    std::unique_ptr<TGraphic> FGraphic;
};

}  // namespace vcl
