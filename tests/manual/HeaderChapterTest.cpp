// The code of docs/manual/header.md, line by line, and what the chapter says that it does.

#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinTabControl.h"
#include "tests/manual/ChapterTest.h"

namespace {

using namespace qv7skin;

class TMainForm : public TForm {
public:
    using TForm::TForm;

    TQV7SkinTabControl* MakeTabs(TBitmap& icon) {
        auto* tabs = new TQV7SkinTabControl(this);  // the form owns the control ...
        tabs->SetAlign(alTop);
        tabs->SetParent(this);
        tabs->Loaded();  // made in code: see "Loading" below

        auto* tab = new TQV7SkinHeaderItemTabExt(bckgrndStandard, L"Document 1", &icon);
        tab->OnClick = {this, &TMainForm::TabClick};
        tab->OnClose = {this, &TMainForm::TabClose};
        tabs->GetItems().Add(tab);  // ... and the control the item
        tabs->SetSelectedItem(tab);
        return tabs;
    }

    void TabClick(TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int) { ++Clicks; }
    void TabClose(TQV7SkinHeaderItemCustom*) { ++Closed; }
    int Clicks = 0;
    int Closed = 0;
};

using HeaderChapterTest = test::ChapterTest<TMainForm>;

TEST_F(HeaderChapterTest, TheTabIsSelectedClickedAndClosed) {
    TBitmap icon(16, 16, pf24bit);
    const TQV7SkinTabControl* tabs = Main().MakeTabs(icon);
    auto* tab = static_cast<TQV7SkinHeaderItemTabExt*>(tabs->GetSelectedItem());
    ASSERT_NE(tab, nullptr);
    EXPECT_EQ(tab->GetCaption(), L"Document 1");
    Input.ClickAt(Main().GetHandle(), 30, 10);
    EXPECT_EQ(Main().Clicks, 1);
    tab->Close();
    EXPECT_EQ(Main().Closed, 1);
    EXPECT_EQ(tabs->GetItems().GetCount(), 0);
}

}  // namespace
