// The code of docs/manual/explorerbar.md that examples/explorerbar does not have, and what the chapter says
// that it does.

#include <vector>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/manual/ChapterTest.h"

namespace {

using namespace qv7skin;

struct TFile {
    String Name;
    String Path;
};

class TStarsItem : public TQV7SkinExplorerItemCustom {
public:
    int Stars = 3;
    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override {
        Place(Bitmap, Left, Top, Width);
        Bitmap.GetCanvas().TextOut(Left + 5, Top, String(Stars, L'*'));
        Measure(Bitmap, Left, Top, Width);
    }
    void Measure(TBitmap&, int&, int& Top, int&) override { Top += 16; }
    void Place(TBitmap&, int Left, int Top, int Width) override {
        FClipRect = {Left + 5, Top, Left + Width - 5, Top + 16};
    }
};

class TMainForm : public TForm {
public:
    explicit TMainForm(TComponent* AOwner) : TForm(AOwner) {
        Bar->SetWidth(200);
        Bar->SetAlign(alLeft);
        Bar->SetParent(this);
    }
    static void AddFiles(TQV7SkinExplorerBar* bar, TQV7SkinExplorerGroup* group,
                         const std::vector<TFile>& files) {
        bar->BeginUpdate();
        for (const TFile& file : files)
            group->GetItems().Add(new TQV7SkinExplorerItemLink(file.Name, file.Path));
        bar->EndUpdate();
    }
    TQV7SkinExplorerBar* Bar = new TQV7SkinExplorerBar(this);
};

using ExplorerBarChapterTest = test::ChapterTest<TMainForm>;

TEST_F(ExplorerBarChapterTest, ManyItemsAreAddedAtOnce) {
    TQV7SkinExplorerGroup* group = Main().Bar->GetGroups().Add(L"Files", false);
    TMainForm::AddFiles(Main().Bar, group, {{L"a.txt", L"in one folder"}, {L"b.txt", L"in another"}});
    EXPECT_EQ(group->GetItems().GetCount(), 2);
}

TEST_F(ExplorerBarChapterTest, AnItemOfOnesOwnIsClicked) {
    auto* stars = new TStarsItem;
    int clicks = 0;
    stars->OnClick = [&](TObject*) { ++clicks; };
    Main().Bar->GetGroups().Add(L"Stars", false)->GetItems().Add(stars);
    Main().Update();
    const TRect place = stars->ClipRect();
    ASSERT_EQ(place.Height(), 16);
    Input.ClickAt(Main().Bar->GetHandle(), place.Left + 8, place.Top + 8);
    EXPECT_EQ(clicks, 1);
}

}  // namespace
