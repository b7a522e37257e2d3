#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/controls/Messages.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

/// A painter that notes what happens to it.
class ProbePainter : public TQV7SkinMenuItemPainterNice {
public:
    explicit ProbePainter(bool& freed) : FFreed(freed) {}
    ~ProbePainter() override { FFreed = true; }
    void DrawItem(TMenuItem& Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected,
                  bool arrow) override {
        ++Drawn;
        Arrow = Arrow || arrow;
        TQV7SkinMenuItemPainterNice::DrawItem(Sender, ACanvas, ARect, Selected, arrow);
    }
    int Drawn = 0;
    bool Arrow = false;

private:
    bool& FFreed;
};

class SkinMenusTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        Form();
        Popup = std::make_unique<TQV7SkinPopupMenu>(nullptr);
        Probe = new ProbePainter(Freed);
        SetQV7SkinMenuItemPainter(Probe);
        for (const wchar_t* caption : {L"&One", L"&Two"})
            Add(Popup->GetItems(), caption);
    }
    void TearDown() override {
        Popup.reset();
        SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainterNice());
        PainterTest::TearDown();
    }
    TMenuItem* Add(TMenuItem& parent, const std::wstring& caption) {
        auto* item = new TMenuItem(nullptr);
        item->SetCaption(caption);
        item->OnClick = [this](TObject* sender) {
            Events.push_back(StripHotkey(dynamic_cast<TMenuItem&>(*sender).GetCaption()));
        };
        parent.Add(item);
        return item;
    }
    static bool IsOpen() {
        const HWND window = FindWindowW(MAKEINTRESOURCEW(32768), nullptr);
        return window && IsWindowVisible(window);
    }
    void OpenAndPress(WORD key) {
        When(&IsOpen, [this, key] { Input.KeyPress(key); });
        Popup->Popup(150, 150);
    }

    bool Freed = false;
    ProbePainter* Probe = nullptr;
    std::unique_ptr<TQV7SkinPopupMenu> Popup;
    std::vector<std::wstring> Events;
};

TEST_F(SkinMenusTest, ThePainterDrawsThePopupMenu) {
    OpenAndPress(VK_ESCAPE);
    EXPECT_TRUE(Popup->GetOwnerDraw());
    EXPECT_GE(Probe->Drawn, 2);
    EXPECT_FALSE(Probe->Arrow);
}

TEST_F(SkinMenusTest, PopupEndsAfterTheClickAndTheCloseUp) {
    Popup->OnCloseUp = [this](TObject*) { Events.push_back(L"closed"); };
    OpenAndPress('T');
    EXPECT_EQ(Events, (std::vector<std::wstring>{L"Two", L"closed"}));
}

TEST_F(SkinMenusTest, TheMenuMayBeFreedByItsItem) {
    Popup->GetItems().GetItem(0)->OnClick = [this](TObject*) {
        Events.push_back(L"freed");
        Popup.release()->Free();
    };
    OpenAndPress('O');
    EXPECT_EQ(Events, std::vector<std::wstring>{L"freed"});
}

TEST_F(SkinMenusTest, AnInactivePainterLeavesDrawingToTheSystem) {
    Probe->SetActive(false);
    OpenAndPress(VK_ESCAPE);
    EXPECT_FALSE(Popup->GetOwnerDraw());
    EXPECT_EQ(Probe->Drawn, 0);
    Probe->SetActive(true);
    OpenAndPress(VK_ESCAPE);
    EXPECT_TRUE(Popup->GetOwnerDraw());
    EXPECT_GT(Probe->Drawn, 0);
}

TEST_F(SkinMenusTest, ANewPainterFreesTheOldOne) {
    SetQV7SkinMenuItemPainter(Probe);
    EXPECT_FALSE(Freed);
    SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainter());
    EXPECT_TRUE(Freed);
}

TEST_F(SkinMenusTest, WithoutAPainterTheNextPopupIsTheSystems) {
    OpenAndPress(VK_ESCAPE);
    EXPECT_TRUE(Popup->GetOwnerDraw());
    SetQV7SkinMenuItemPainter(nullptr);
    EXPECT_TRUE(Freed);
    OpenAndPress(VK_ESCAPE);
    EXPECT_FALSE(Popup->GetOwnerDraw());
}

TEST_F(SkinMenusTest, CallbacksReachEveryLevel) {
    TMenuItem* deepest = &Popup->GetItems();
    for (const wchar_t* caption : {L"One", L"Two", L"Three", L"Four"})
        deepest = Add(*deepest, caption);
    Popup->ApplyCustomLayout();
    for (TMenuItem* item = deepest; item->GetParent(); item = item->GetParent()) {
        EXPECT_EQ(item->OnDrawItem.ObjectPart(), dynamic_cast<void*>(Popup.get()));
        EXPECT_EQ(item->OnMeasureItem.ObjectPart(), dynamic_cast<void*>(Popup.get()));
    }
}

TEST_F(SkinMenusTest, ItemsThatComeWhileTheMenuOpensAreInTheSkinToo) {
    TMenuItem* late = nullptr;
    Popup->OnPopup = [&](TObject*) { late = Add(Popup->GetItems(), L"&Late"); };
    OpenAndPress('L');
    EXPECT_EQ(Events, std::vector<std::wstring>{L"Late"});
    EXPECT_TRUE(late->OnDrawItem);
}

TEST_F(SkinMenusTest, TheMainMenuIsLaidOutOnDemand) {
    TQV7SkinMainMenu main(nullptr);
    TMenuItem* file = Add(main.GetItems(), L"&File");
    TMenuItem* open = Add(*file, L"&Open");
    EXPECT_FALSE(main.GetOwnerDraw());
    main.ApplyCustomLayout();
    EXPECT_TRUE(main.GetOwnerDraw());
    for (TMenuItem* item : {file, open}) {
        EXPECT_EQ(item->OnDrawItem.ObjectPart(), dynamic_cast<void*>(&main));
        EXPECT_EQ(item->OnMeasureItem.ObjectPart(), dynamic_cast<void*>(&main));
    }
    const Pixels drawn = DrawOn([&](TCanvas& canvas) {
        main.DoCustomDrawItem(open, canvas, {0, 0, 150, 30}, false);
    });
    EXPECT_EQ(drawn.At(100, 2), ItemGround);
    Probe->SetActive(false);
    const Pixels nothing = DrawOn([&](TCanvas& canvas) {
        main.DoCustomDrawItem(open, canvas, {0, 0, 150, 30}, false);
    });
    EXPECT_EQ(nothing.Count(clWhite), Width * Height);
    int width = 3;
    int height = 4;
    (void)DrawOn([&](TCanvas& canvas) { main.DoCustomMeasureItem(open, canvas, width, height); });
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 4);
}

TEST_F(SkinMenusTest, ShortCutsRunBetweenTheirEvents) {
    TMessage key{WM_KEYDOWN, VK_F5, 0, 0};
    Popup->GetItems().GetItem(0)->SetShortCut(VK_F5);
    Popup->OnBeforeExecuteShortCut = [this](TObject*) { Events.push_back(L"before"); };
    Popup->OnAfterExecuteShortCut = [this](TObject*) { Events.push_back(L"after"); };
    EXPECT_TRUE(Popup->IsShortCut(key));
    EXPECT_EQ(Events, (std::vector<std::wstring>{L"before", L"One", L"after"}));
    Events.clear();
    key.WParam = VK_F6;
    EXPECT_FALSE(Popup->IsShortCut(key));
    EXPECT_EQ(Events, (std::vector<std::wstring>{L"before", L"after"}));
}

TEST_F(SkinMenusTest, TheSecondEventComesAlsoAfterAnError) {
    TQV7SkinMainMenu main(nullptr);
    TMenuItem* item = Add(main.GetItems(), L"&File");
    item->SetShortCut(VK_F5);
    item->OnClick = [](TObject*) { throw EInvalidOperation(L"no"); };
    main.OnAfterExecuteShortCut = [this](TObject*) { Events.push_back(L"after"); };
    TMessage key{WM_KEYDOWN, VK_F5, 0, 0};
    EXPECT_THROW(main.IsShortCut(key), EInvalidOperation);
    EXPECT_EQ(Events, std::vector<std::wstring>{L"after"});
}

}  // namespace
}  // namespace test
