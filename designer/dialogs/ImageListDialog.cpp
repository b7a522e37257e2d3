#include "designer/dialogs/ImageListDialog.h"

#include <algorithm>
#include <utility>

#include "buttons/UnitQV7SkinButton.h"
#include "designer/dialogs/DialogParts.h"
#include "designer/dialogs/ImagePreview.h"
#include "designer/dialogs/RowList.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ScrollBox.h"

namespace designer {
namespace {

constexpr TSize DialogSize{460, 380};
/// The largest picture that a row shows in its own size.
constexpr int LargestInRow = 48;

/// Draws the graphic into the rectangle of a bitmap filled with that colour.
void DrawOn(TBitmap& bitmap, TColor ground, const TGraphic& graphic, const TRect& place) {
    bitmap.GetCanvas().GetBrush().SetColor(ground);
    bitmap.GetCanvas().FillRect({0, 0, bitmap.GetWidth(), bitmap.GetHeight()});
    graphic.Draw(bitmap.GetCanvas(), place);
}

/// The place in a picture of `size` in which a graphic stands in the middle, as large as it is where it fits.
TRect CentredIn(TSize size, TSize graphic) {
    int width = graphic.Width;
    int height = graphic.Height;
    if (width > size.Width || height > size.Height) {
        const bool isWide = std::int64_t{width} * size.Height > std::int64_t{height} * size.Width;
        width = isWide ? size.Width : std::max(1, graphic.Width * size.Height / graphic.Height);
        height = isWide ? std::max(1, graphic.Height * size.Width / graphic.Width) : size.Height;
    }
    return TRect::OfSize((size.Width - width) / 2, (size.Height - height) / 2, width, height);
}

/// Adds what the graphic draws. Drawn on black and on white, its pixels tell how much of the ground shows
/// through.
int AddGraphic(TCustomImageList& images, const TGraphic& graphic) {
    const TSize one{images.GetWidth(), images.GetHeight()};
    const TSize own{graphic.GetWidth(), graphic.GetHeight()};
    const bool isStrip = own.Height == one.Height && own.Width > 0 && own.Width % one.Width == 0;
    const TSize size = isStrip ? own : one;
    const TRect place = isStrip ? TRect::OfSize(0, 0, own.Width, own.Height) : CentredIn(one, own);
    TBitmap image(size.Width, size.Height, pf32bit);
    DrawOn(image, clBlack, graphic, place);
    TBitmap onWhite(size.Width, size.Height, pf32bit);
    DrawOn(onWhite, clWhite, graphic, place);
    TBitmap mask(size.Width, size.Height, pf32bit);

    const TBitmapBits pixels = image.WriteBits();
    const TConstBitmapBits light = onWhite.ReadBits();
    const TBitmapBits masked = mask.WriteBits();
    for (int y = 0; y < size.Height; ++y) {
        for (int x = 0; x < size.Width; ++x) {
            const TColor color = pixels.GetColor(x, y);
            const int alpha = 255 - (GreenOf(light.GetColor(x, y)) - GreenOf(color));
            const auto whole = [alpha](int part) { return std::min(255, part * 255 / alpha); };
            const bool shows = alpha >= 128;
            masked.SetColor(x, y, shows ? clBlack : clWhite);
            pixels.SetColor(x, y,
                            shows
                                ? RGBToColor(whole(RedOf(color)), whole(GreenOf(color)), whole(BlueOf(color)))
                                : clBlack);
        }
    }
    return images.Add(&image, &mask);
}

class TImageListDialog final {
public:
    TImageListDialog(const TCustomImageList& images, TValueDialogs& values)
        : FForm(nullptr), FImages(nullptr), FValues(values) {
        FImages.Assign(&images);
        PrepareDialog(FForm, L"Bilder", DialogSize, true);
        auto* label = new TLabel(&FForm);
        label->SetCaption(
            Format(L"%s: %d × %d Bildpunkte", images.GetName(), FImages.GetWidth(), FImages.GetHeight()));
        label->SetBounds(DialogMargin, DialogMargin, 300, 16);
        label->SetParent(&FForm);
        MakeList();
        MakeButtons();
        AddOkAndCancel(FForm);
        ShowImages(0);
        FForm.SetActiveControl(FList);
    }

    [[nodiscard]] bool Run() { return FForm.ShowModal() == mrOk; }
    [[nodiscard]] const TImageList& Images() const { return FImages; }

private:
    void MakeList() {
        constexpr int bottom = DialogSize.Height - 2 * DialogMargin - DialogButtonHeight;
        constexpr int previewLeft = DialogSize.Width - DialogMargin - 2 * DialogButtonWidth - 8;
        TScrollBox& box = AddScrollField(FForm, {DialogMargin, 34, previewLeft - 8, bottom});
        FList = new TRowList(&FForm);
        FList->PictureWidth = std::min(FImages.GetWidth(), LargestInRow);
        FList->SetRowHeight(std::max(20, std::min(FImages.GetHeight(), LargestInRow) + 6));
        FList->SetAlign(alTop);
        FList->SetParent(&box);
        FList->OnChoose = {this, &TImageListDialog::ShowPreview};
        FList->OnMoveRow = {this, &TImageListDialog::Move};
        FList->OnDrawPicture = {this, &TImageListDialog::DrawPicture};
        FList->OnKeyDown = {this, &TImageListDialog::ListKeyDown};
        FPreview = new TImagePreview(&FForm, FImages);
        FPreview->SetBounds(previewLeft, 34, DialogButtonWidth, DialogButtonWidth);
        FPreview->SetAnchors({akTop, akRight});
        FPreview->SetParent(&FForm);
    }

    void MakeButtons() {
        constexpr int left = DialogSize.Width - DialogMargin - DialogButtonWidth;
        AddButton(FForm, {left, 34}, L"&Neu …", [this] { AddFiles(); });
        AddButton(FForm, {left, 64}, L"&Ersetzen …", [this] { ReplaceChosen(); });
        AddButton(FForm, {left, 104}, L"&Hinauf", [this] { Shift(-1); });
        AddButton(FForm, {left, 134}, L"Hina&b", [this] { Shift(1); });
        AddButton(FForm, {left, 174}, L"&Löschen", [this] { DeleteChosen(); });
        AddButton(FForm, {left, 204}, L"&Alle löschen", [this] { Clear(); });
    }

    void ShowImages(int chosen) {
        std::vector<TListRow> rows;
        for (int i = 0; i < FImages.GetCount(); ++i)
            rows.push_back({.Text = Format(L"%d", i)});
        FList->SetRows(std::move(rows));
        FList->SetChosen(std::min(chosen, FImages.GetCount() - 1));
        ShowPreview();
    }

    void ShowPreview() { FPreview->SetIndex(FList->GetChosen()); }

    void DrawPicture(TCanvas& canvas, const TRect& place, int index) {
        if (FImages.GetWidth() <= LargestInRow && FImages.GetHeight() <= LargestInRow)
            return FImages.Draw(canvas, place.Left, place.Top + (place.Height() - FImages.GetHeight()) / 2,
                                index);
        TBitmap bitmap;
        if (!FImages.GetBitmap(index, bitmap)) return;
        const TRect centred =
            CentredIn({place.Width(), place.Height() - 6}, {bitmap.GetWidth(), bitmap.GetHeight()});
        canvas.StretchDraw(TRect::OfSize(place.Left + centred.Left, place.Top + 3 + centred.Top,
                                         centred.Width(), centred.Height()),
                           &bitmap);
    }

    /// What can't be loaded is told, the other files come in.
    void AddFiles() {
        int chosen = FList->GetChosen();
        for (const String& file : FValues.AskPictures()) {
            try {
                chosen = AddPictureFile(FImages, file);
            } catch (const Exception& error) {
                ShowErrorMessage(file + L": " + error.Message());
            }
        }
        ShowImages(chosen);
    }

    void ReplaceChosen() {
        const int index = FList->GetChosen();
        if (index < 0) return;
        const auto file = FValues.AskPicture(TValueDialogs::AllPictures);
        if (!file) return;
        try {
            const int added = AddPictureFile(FImages, *file);
            FImages.Delete(index);
            for (int i = added - 1; i < FImages.GetCount(); ++i)
                FImages.Move(i, index + i - (added - 1));
        } catch (const Exception& error) {
            ShowErrorMessage(*file + L": " + error.Message());
        }
        ShowImages(index);
    }

    void DeleteChosen() {
        const int index = FList->GetChosen();
        if (index < 0) return;
        FImages.Delete(index);
        ShowImages(index);
    }

    void Clear() {
        FImages.Clear();
        ShowImages(-1);
    }

    void Move(int from, int before) {
        const int to = before > from ? before - 1 : before;
        FImages.Move(from, to);
        ShowImages(to);
    }

    void Shift(int by) {
        const int from = FList->GetChosen();
        if (from < 0 || from + by < 0 || from + by >= FImages.GetCount()) return;
        FImages.Move(from, from + by);
        ShowImages(from + by);
    }

    void ListKeyDown(TObject*, WORD& key, TShiftState shift) {
        const bool ctrl = shift.Contains(ssCtrl);
        switch (std::exchange(key, 0)) {
            case VK_INSERT:
                return AddFiles();
            case VK_DELETE:
                return DeleteChosen();
            case VK_UP:
                if (ctrl) return Shift(-1);
                key = VK_UP;
                return;
            case VK_DOWN:
                if (ctrl) return Shift(1);
                key = VK_DOWN;
                return;
            case VK_HOME:
                key = VK_HOME;
                return;
            case VK_END:
                key = VK_END;
                return;
            default:
                return;
        }
    }

    TForm FForm;
    TImageList FImages;
    TValueDialogs& FValues;
    TRowList* FList = nullptr;
    TImagePreview* FPreview = nullptr;
};

}  // namespace

int AddPictureFile(TCustomImageList& images, const String& fileName) {
    TPicture picture;
    picture.LoadFromFile(fileName);
    TGraphic* graphic = picture.GetGraphic();
    if (!graphic || graphic->GetEmpty()) return -1;
    if (auto* bitmap = dynamic_cast<TBitmap*>(graphic)) bitmap->SetTransparent(true);
    return AddGraphic(images, *graphic);
}

void EditImageList(TDesignDocument& document, TCustomImageList& images, TValueDialogs& values) {
    TImageListDialog dialog(images, values);
    if (!dialog.Run()) return;
    document.Edit(L"Bilder ändern", [&] {
        images.BeginUpdate();
        images.Clear();
        images.AddImages(dialog.Images());
        images.EndUpdate();
    });
}

}  // namespace designer
