#include "platform/vcl/graphics/ImageList.h"

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::MessageOf;
using probes::Paint;

/// Lists of 4 x 3 images; image n is of colour 0x00n0n0n0.
class ImageListTest : public test::LedgerTest {
protected:
    static TColor ColorOf(int n) { return static_cast<TColor>(n) * 0x00101010U; }
    /// `count` images side by side, from number `first` on.
    static void PaintImages(TBitmap& bitmap, int first, int count = 1, TPixelFormat format = pf24bit) {
        bitmap.SetPixelFormat(format);
        bitmap.SetSize(4 * count, 3);
        Paint(bitmap, [&](int x, int) { return ColorOf(first + x / 4); });
    }
    static void AddNumbers(TCustomImageList& list, int first, int last) {
        for (int n = first; n <= last; ++n) {
            TBitmap bitmap;
            PaintImages(bitmap, n);
            list.Add(&bitmap, nullptr);
        }
    }
    /// The numbers of the images in their order.
    static std::vector<int> NumbersOf(const TCustomImageList& list) {
        std::vector<int> numbers;
        for (int i = 0; i < list.GetCount(); ++i) {
            TBitmap bitmap;
            EXPECT_TRUE(list.GetBitmap(i, bitmap));
            const TColor color = bitmap.GetCanvas().GetPixel(3, 2);
            EXPECT_TRUE(probes::Shows(bitmap, [color](int, int) { return color; }));
            numbers.push_back(static_cast<int>(color / 0x00101010U));
        }
        return numbers;
    }
    using Numbers = std::vector<int>;
};

TEST_F(ImageListTest, ANewListIsEmptyAndSixteenBySixteen) {
    const TImageList list(nullptr);
    EXPECT_EQ(list.GetWidth(), 16);
    EXPECT_EQ(list.GetHeight(), 16);
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetBkColor(), clNone);
    EXPECT_EQ(list.GetBlendColor(), clNone);
    EXPECT_EQ(list.GetDrawingStyle(), dsNormal);
    EXPECT_TRUE(list.GetMasked());
    EXPECT_FALSE(list.HandleAllocated());
}

TEST_F(ImageListTest, AddedImagesKeepTheirOrder) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 11);
    EXPECT_EQ(list.GetCount(), 11);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(ImageListTest, AWideBitmapHoldsSeveralImages) {
    TImageList list(nullptr, 4, 3);
    TBitmap bitmap;
    PaintImages(bitmap, 1);
    EXPECT_EQ(list.Add(&bitmap, nullptr), 0);
    PaintImages(bitmap, 5, 3);
    EXPECT_EQ(list.Add(&bitmap, nullptr), 1);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 5, 6, 7}));
    bitmap.SetSize(7, 9);
    EXPECT_EQ(list.Add(&bitmap, nullptr), 4);
    EXPECT_EQ(list.GetCount(), 5);
}

TEST_F(ImageListTest, EveryDepthIsTaken) {
    TImageList list(nullptr, 4, 3);
    for (const TPixelFormat format : {pfDevice, pf24bit, pf32bit}) {
        TBitmap bitmap;
        PaintImages(bitmap, 9, 1, format);
        list.Add(&bitmap, nullptr);
    }
    TBitmap black(4, 3, pf1bit);
    black.GetCanvas().GetBrush().SetColor(clBlack);
    black.GetCanvas().FillRect({0, 0, 4, 3});
    list.Add(&black, nullptr);
    EXPECT_EQ(NumbersOf(list), (Numbers{9, 9, 9, 0}));
}

TEST_F(ImageListTest, ATooSmallBitmapIsRefused) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 2);
    const TBitmap narrow(3, 3);
    const TBitmap low(4, 2);
    const TBitmap empty;
    const TBitmap fits(8, 3);
    for (const TBitmap* wrong : {&narrow, &low, &empty}) {
        EXPECT_EQ(MessageOf<EInvalidOperation>([&] { list.Add(wrong, nullptr); }), L"Invalid image size");
        EXPECT_EQ(MessageOf<EInvalidOperation>([&] { list.AddMasked(wrong, clRed); }), L"Invalid image size");
        EXPECT_THROW(list.Insert(0, wrong, nullptr), EInvalidOperation);
        EXPECT_THROW(list.Replace(0, wrong, nullptr), EInvalidOperation);
        EXPECT_THROW(list.Add(&fits, wrong), EInvalidOperation);
        EXPECT_THROW(list.Replace(0, &fits, wrong), EInvalidOperation);
    }
    const TBitmap maskOfOne(4, 3);
    EXPECT_THROW(list.Add(&fits, &maskOfOne), EInvalidOperation);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 2}));
}

TEST_F(ImageListTest, NullBitmapsChangeNothing) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 2);
    int changes = 0;
    list.OnChange = [&](TObject*) { ++changes; };
    EXPECT_EQ(list.Add(nullptr, nullptr), -1);
    EXPECT_EQ(list.AddMasked(nullptr, clRed), -1);
    list.Insert(0, nullptr, nullptr);
    list.InsertMasked(0, nullptr, clRed);
    list.Replace(0, nullptr, nullptr);
    list.ReplaceMasked(0, nullptr, clRed);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 2}));
}

TEST_F(ImageListTest, ImagesAreInsertedReplacedMovedAndDeleted) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 5);
    TBitmap bitmap;
    PaintImages(bitmap, 8, 2);
    list.Insert(1, &bitmap, nullptr);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 8, 9, 2, 3, 4, 5}));
    PaintImages(bitmap, 7);
    list.Replace(2, &bitmap, nullptr);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 8, 7, 2, 3, 4, 5}));
    list.Insert(7, &bitmap, nullptr);
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 8, 7, 2, 3, 4, 5, 7}));
    list.Move(0, 3);
    EXPECT_EQ(NumbersOf(list), (Numbers{8, 7, 2, 1, 3, 4, 5, 7}));
    list.Move(7, 1);
    EXPECT_EQ(NumbersOf(list), (Numbers{8, 7, 7, 2, 1, 3, 4, 5}));
    list.Delete(0);
    list.Delete(6);
    list.Delete(2);
    EXPECT_EQ(NumbersOf(list), (Numbers{7, 7, 1, 3, 4}));
    list.Clear();
    EXPECT_EQ(list.GetCount(), 0);
    AddNumbers(list, 3, 4);
    EXPECT_EQ(NumbersOf(list), (Numbers{3, 4}));
}

TEST_F(ImageListTest, WrongIndicesRaise) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 2);
    TBitmap bitmap;
    PaintImages(bitmap, 5);
    EXPECT_EQ(MessageOf<EListError>([&] { list.Delete(2); }), L"List index out of bounds (2)");
    EXPECT_EQ(MessageOf<EListError>([&] { list.Replace(-1, &bitmap, nullptr); }),
              L"List index out of bounds (-1)");
    EXPECT_THROW(list.Insert(3, &bitmap, nullptr), EListError);
    EXPECT_THROW(list.Move(0, 2), EListError);
    EXPECT_THROW(list.Move(-1, 0), EListError);
    EXPECT_FALSE(list.GetBitmap(2, bitmap));
    EXPECT_FALSE(list.IsMasked(99));
    EXPECT_EQ(NumbersOf(list), (Numbers{1, 2}));
}

TEST_F(ImageListTest, ANewSizeRemovesAllImages) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 2);
    int changes = 0;
    list.OnChange = [&](TObject*) { ++changes; };
    list.SetWidth(4);
    list.SetHeight(3);
    EXPECT_EQ(changes, 0);
    list.SetHeight(5);
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(changes, 1);
    list.SetSize(-4, 0);
    EXPECT_EQ(list.GetWidth(), 1);
    EXPECT_EQ(list.GetHeight(), 1);
}

TEST_F(ImageListTest, AnotherListIsAddedOrAssigned) {
    TImageList source(nullptr, 4, 3);
    AddNumbers(source, 1, 2);
    TBitmap bitmap;
    PaintImages(bitmap, 5);
    bitmap.GetCanvas().SetPixel(0, 0, clFuchsia);
    source.AddMasked(&bitmap, clFuchsia);
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 9, 9);
    list.AddImages(source);
    EXPECT_EQ(list.GetCount(), 4);
    EXPECT_TRUE(list.IsMasked(3));
    EXPECT_FALSE(list.IsMasked(2));
    TImageList other(nullptr);
    EXPECT_EQ(MessageOf<EInvalidOperation>([&] { other.AddImages(source); }), L"Invalid image size");
    source.SetBkColor(clRed);
    other.Assign(&source);
    EXPECT_EQ(other.GetWidth(), 4);
    EXPECT_EQ(other.GetCount(), 3);
    EXPECT_EQ(other.GetBkColor(), clRed);
    AddNumbers(other, 7, 7);
    EXPECT_EQ(source.GetCount(), 3);
    other.Delete(2);
    EXPECT_EQ(NumbersOf(other), (Numbers{1, 2, 7}));
    other.Assign(nullptr);
    EXPECT_EQ(other.GetCount(), 0);
}

// --- Telling

TEST_F(ImageListTest, ChangesAreToldToLinksAndHandler) {
    TImageList list(nullptr, 4, 3);
    int told = 0;
    int linked = 0;
    TChangeLink link;
    link.OnChange = [&](TObject* sender) {
        EXPECT_EQ(sender, &list);
        ++linked;
    };
    list.RegisterChanges(&link);
    EXPECT_EQ(link.GetSender(), &list);
    list.OnChange = [&](TObject*) { ++told; };
    AddNumbers(list, 1, 2);
    list.SetBkColor(clRed);
    list.SetBkColor(clRed);
    list.SetBlendColor(clRed);
    list.SetDrawingStyle(dsFocus);
    list.SetMasked(false);
    EXPECT_EQ(told, 6);
    EXPECT_EQ(linked, 6);
    list.BeginUpdate();
    AddNumbers(list, 3, 5);
    list.Clear();
    EXPECT_EQ(told, 6);
    list.EndUpdate();
    EXPECT_EQ(told, 7);
    list.BeginUpdate();
    list.EndUpdate();
    EXPECT_EQ(told, 7);
    list.UnRegisterChanges(&link);
    EXPECT_EQ(link.GetSender(), nullptr);
    AddNumbers(list, 1, 1);
    EXPECT_EQ(linked, 7);
}

TEST_F(ImageListTest, LinksAndListsMayEndInAnyOrder) {
    auto list = std::make_unique<TImageList>(nullptr, 4, 3);
    auto first = std::make_unique<TChangeLink>();
    TChangeLink second;
    list->RegisterChanges(first.get());
    list->RegisterChanges(&second);
    first->OnChange = [&](TObject*) { first.reset(); };
    int told = 0;
    second.OnChange = [&](TObject*) { ++told; };
    AddNumbers(*list, 1, 1);
    EXPECT_EQ(told, 1);
    list.reset();
    EXPECT_EQ(second.GetSender(), nullptr);
}

TEST_F(ImageListTest, AHandlerMayFreeTheList) {
    auto list = std::make_unique<TImageList>(nullptr, 4, 3);
    TChangeLink link;
    link.OnChange = [&](TObject*) { list.reset(); };
    list->RegisterChanges(&link);
    list->SetBkColor(clRed);
    EXPECT_EQ(list, nullptr);
}

// --- The system's list

TEST_F(ImageListTest, TheSystemsListHasTheSameImages) {
    TImageList list(nullptr, 4, 3);
    AddNumbers(list, 1, 3);
    TBitmap bitmap;
    PaintImages(bitmap, 5);
    bitmap.GetCanvas().SetPixel(1, 1, clFuchsia);
    list.AddMasked(&bitmap, clFuchsia);
    const HIMAGELIST handle = list.GetHandle();
    EXPECT_TRUE(list.HandleAllocated());
    EXPECT_EQ(ImageList_GetImageCount(handle), 4);
    const auto drawn = [&](int index) {
        return test::Drawn(4, 3, clLime,
                           [&](HDC dc) { ImageList_Draw(handle, index, dc, 0, 0, ILD_TRANSPARENT); });
    };
    EXPECT_TRUE(test::SamePixels(drawn(1), [](int, int) { return ColorOf(2); }));
    EXPECT_TRUE(
        test::SamePixels(drawn(3), [](int x, int y) { return x == 1 && y == 1 ? clLime : ColorOf(5); }));
    list.Delete(0);
    EXPECT_EQ(list.GetHandle(), handle);
    EXPECT_EQ(ImageList_GetImageCount(handle), 3);
    EXPECT_TRUE(test::SamePixels(drawn(0), [](int, int) { return ColorOf(2); }));
    list.SetSize(7, 8);
    int width = 0;
    int height = 0;
    EXPECT_TRUE(ImageList_GetIconSize(handle, &width, &height));
    EXPECT_EQ(TSize(width, height), TSize(7, 8));
    EXPECT_EQ(ImageList_GetImageCount(handle), 0);
}

TEST_F(ImageListTest, PropertiesArePublished) {
    TImageList list(nullptr);
    const TMetaClass& meta = list.ClassType();
    EXPECT_EQ(String(meta.ClassName()), L"TImageList");
    for (const wchar_t* name :
         {L"BkColor", L"BlendColor", L"DrawingStyle", L"Height", L"Masked", L"Width", L"OnChange"})
        EXPECT_NE(meta.FindProperty(name), nullptr) << ToUtf8(name);
    meta.FindProperty(L"Width")->Set(list, std::int64_t{32});
    EXPECT_EQ(list.GetWidth(), 32);
}

}  // namespace
}  // namespace vcl
