#pragma once

#include <memory>
#include <vector>

#include "designer/surface/Overlay.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace designer {

/// What the user sees while the mouse drags controls: the form with pictures of them where they will come to
/// stand, and what they leave behind, pale. One window over the form shows it all, since on a form of a
/// thousand windows each visible change of one is dear.
class TDragPicture {
public:
    /// Something that is dragged.
    struct TPiece {
        TControl* Control = nullptr;  ///< Must live until the end.
        TRect Place;                  ///< Where it stands, in client pixels of the form.
        TRect Shown;                  ///< How far its parents let it be seen, in the same pixels.
    };

    explicit TDragPicture(TColor guideColor);
    ~TDragPicture();

    /// Takes a picture of the form as it shows now and covers it with that. Raises what the painting of a
    /// control raises.
    void Begin(TWinControl& form, const std::vector<TPiece>& pieces);
    /// The first piece has that place and its size now: takes another picture of it.
    void TakeAgain(const TRect& place);
    /// Shows the pieces that many pixels from where they stand, and guides, in client pixels of the form.
    void Show(TPoint distance, std::vector<TRect> guides);
    /// Uncovers the form, which must not be painting itself meanwhile, and be painted where the picture
    /// differed from it: ask for `Touched` before.
    void End();
    [[nodiscard]] bool IsShown() const { return FWindow != nullptr; }
    /// Where the picture differs from the form, in client pixels of the form.
    [[nodiscard]] std::vector<TRect> Touched() const;

private:
    class TWindow;
    struct TPainted {
        TPiece Piece;
        TRect Left;  ///< Where it stood in the beginning.
        std::unique_ptr<TBitmap>
            Picture;  ///< Null for a control without a window, which is painted over what lies there.
    };

    [[nodiscard]] static std::unique_ptr<TBitmap> PictureOf(const TPiece& piece);
    void TakeForm(HWND form, const TRect& client);
    void Pale(const TRect& area, TColor ground);
    void Draw(TPainted& painted, TPoint distance);
    [[nodiscard]] static TRect PlaceAt(const TPiece& piece, TPoint distance);

    TColor FGuideColor;
    std::unique_ptr<TWindow> FWindow;
    std::vector<TPainted> FPieces;
    TBitmap FForm;              ///< The form with the pieces pale.
    TBitmap FShown;             ///< The same with the pieces where they are shown.
    std::vector<TRect> FDrawn;  ///< Where the two differ.
};

}  // namespace designer
