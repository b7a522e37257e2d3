#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/controls/Messages.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/FreedMemory.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

/// A painter that notes what happens to it.
class ProbePainter : public TQV7SkinMenuItemPainterNice {
public:
    explicit ProbePainter(bool& freed) : FFreed(freed) {}
    ~ProbePainter() override {
        FFreed = true;
        if (AtEnd) AtEnd();
    }
    void DrawItem(TMenuItem& Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected,
                  bool arrow) override {
        ++Drawn;
        Arrow = Arrow || arrow;
        TQV7SkinMenuItemPainterNice::DrawItem(Sender, ACanvas, ARect, Selected, arrow);
    }
    int Drawn = 0;
    bool Arrow = false;
    std::function<void()> AtEnd;

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

TEST_F(SkinMenusTest, TheOldPainterIsFreedFirst) {
    TQV7SkinMenuItemPainter* present = Probe;
    Probe->AtEnd = [&] { present = QV7SkinMenuItemPainter(); };
    auto* next = new TQV7SkinMenuItemPainter();
    SetQV7SkinMenuItemPainter(next);
    EXPECT_EQ(present, nullptr);
    EXPECT_EQ(QV7SkinMenuItemPainter(), next);
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
    EXPECT_EQ(open->OnDrawItem.ObjectPart(), dynamic_cast<void*>(&main));
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

TEST_F(SkinMenusTest, TheMainMenusShortCutsRunBetweenTheirEvents) {
    TQV7SkinMainMenu main(nullptr);
    Add(main.GetItems(), L"&File")->SetShortCut(VK_F5);
    main.OnBeforeExecuteShortCut = [&](TObject* sender) {
        EXPECT_EQ(dynamic_cast<TQV7SkinMainMenu*>(sender), &main);
        Events.push_back(L"before");
    };
    main.OnAfterExecuteShortCut = [&](TObject* sender) {
        EXPECT_EQ(dynamic_cast<TQV7SkinMainMenu*>(sender), &main);
        Events.push_back(L"after");
    };
    TMessage key{WM_KEYDOWN, VK_F5, 0, 0};
    EXPECT_TRUE(main.IsShortCut(key));
    EXPECT_EQ(Events, (std::vector<std::wstring>{L"before", L"File", L"after"}));
    key.WParam = VK_F6;
    EXPECT_FALSE(main.IsShortCut(key));
    EXPECT_EQ(Events.size(), 5U);
}

TEST_F(SkinMenusTest, ThePopupMenusSecondEventComesAlsoAfterAnError) {
    Popup->GetItems().GetItem(0)->SetShortCut(VK_F5);
    Popup->GetItems().GetItem(0)->OnClick = [](TObject*) { throw EInvalidOperation(L"no"); };
    Popup->OnAfterExecuteShortCut = [this](TObject*) { Events.push_back(L"after"); };
    TMessage key{WM_KEYDOWN, VK_F5, 0, 0};
    EXPECT_THROW(Popup->IsShortCut(key), EInvalidOperation);
    EXPECT_EQ(Events, std::vector<std::wstring>{L"after"});
}

TEST_F(SkinMenusTest, AMenuMayGoInTheEventsOfItsShortCuts) {
    for (const int when : {0, 1, 2}) {
        const FreedMemory guard;
        auto* main = new TQV7SkinMainMenu(nullptr);
        TMenuItem* item = Add(main->GetItems(), L"&File");
        item->SetShortCut(VK_F5);
        const auto end = [&](TObject*) {
            Events.push_back(L"end");
            delete main;
        };
        main->OnAfterExecuteShortCut = [this](TObject*) { Events.push_back(L"after"); };
        (when == 0   ? main->OnBeforeExecuteShortCut
         : when == 1 ? item->OnClick
                     : main->OnAfterExecuteShortCut) = end;
        TMessage key{WM_KEYDOWN, VK_F5, 0, 0};
        EXPECT_TRUE(main->IsShortCut(key)) << when;
        EXPECT_EQ(Events.back(), L"end");
        EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
    }
}

TEST_F(SkinMenusTest, AnErrorOfTheItemReachesTheApplicationAndTheMenuClosesUp) {
    Popup->GetItems().GetItem(0)->OnClick = [](TObject*) { throw EInvalidOperation(L"no"); };
    Popup->OnCloseUp = [this](TObject* sender) {
        EXPECT_EQ(dynamic_cast<TQV7SkinPopupMenu*>(sender), Popup.get());
        Events.push_back(L"closed");
    };
    OpenAndPress('O');
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: no"});
    EXPECT_EQ(Events, std::vector<std::wstring>{L"closed"});
    Errors.clear();
    OpenAndPress('T');
    EXPECT_EQ(Events.back(), L"closed");
}

TEST_F(SkinMenusTest, WhatIsNoItemIsNeitherDrawnNorMeasured) {
    TQV7SkinMainMenu main(nullptr);
    int width = 3;
    int height = 4;
    for (TObject* sender : {static_cast<TObject*>(nullptr), static_cast<TObject*>(Probe)}) {
        const Pixels shown = DrawOn([&](TCanvas& canvas) {
            main.DoCustomDrawItem(sender, canvas, {0, 0, 150, 30}, false);
            Popup->DoCustomDrawItem(sender, canvas, {0, 0, 150, 30}, false);
            main.DoCustomMeasureItem(sender, canvas, width, height);
            Popup->DoCustomMeasureItem(sender, canvas, width, height);
        });
        EXPECT_EQ(shown.Count(clWhite), Width * Height);
    }
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 4);
}

TEST_F(SkinMenusTest, AMainMenuOfAFormFileIsLaidOutWhenItIsComplete) {
    for (const bool isDesigning : {false, true})
        for (const bool isActive : {false, true}) {
            TQV7SkinMainMenu main(nullptr);
            Probe->SetActive(isActive);
            if (isDesigning) main.SetDesigning(true);
            main.BeginLoading();
            TMenuItem* item = Add(main.GetItems(), L"&File");
            EXPECT_FALSE(item->OnDrawItem);
            main.EndLoading();
            EXPECT_EQ(main.GetOwnerDraw(), isActive && !isDesigning);
            EXPECT_EQ(item->OnDrawItem.IsAssigned(), isActive && !isDesigning);
            // What comes later is hooked too.
            EXPECT_EQ(Add(*item, L"&Open")->OnDrawItem.IsAssigned(), isActive && !isDesigning);
        }
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
