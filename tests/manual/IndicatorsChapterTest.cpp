// The code of docs/manual/indicators.md, line by line, and what the chapter says that it does.

#include <vector>

#include "indicators/UnitQV7SkinGauges.h"
#include "indicators/UnitQV7SkinLinkLabel.h"
#include "indicators/UnitQV7SkinSplitter.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/manual/ChapterTest.h"

namespace {

using namespace qv7skin;

class TMainForm : public TForm {
public:
    using TForm::TForm;

    TQV7SkinGauge* CopyAll(const std::vector<String>& files) {
        auto* gauge = new TQV7SkinGauge(this);
        gauge->SetParent(this);
        gauge->SetBounds(12, 12, 200, 22);
        gauge->SetMaxValue(static_cast<int>(files.size()));
        for (const String& file : files) {
            Copy(file);
            gauge->AddProgress(1);
        }
        return gauge;
    }
    TQV7SkinLinkLabel* MakeLink() {
        auto* link = new TQV7SkinLinkLabel(this);
        link->SetParent(this);
        link->SetCaption(L"Weitere Einstellungen");
        link->OnClick = {this, &TMainForm::MoreClick};
        return link;
    }
    void Split(TWinControl* tree, TWinControl* list) {
        tree->SetAlign(alLeft);  // what is resized ...
        auto* splitter = new TQV7SkinSplitter(this);
        splitter->SetAlign(alLeft);  // ... the bar behind it ...
        splitter->SetLeft(tree->GetLeft() + tree->GetWidth());
        splitter->SetParent(this);
        list->SetAlign(alClient);  // ... and the rest
        splitter->GetMinConstraints().SetLeft(120);
        splitter->GetMinConstraints().SetRight(200);
    }

    void Copy(const String&) { ++Copied; }
    void MoreClick(TObject*) { ++Clicks; }
    int Copied = 0;
    int Clicks = 0;
};

using IndicatorsChapterTest = test::ChapterTest<TMainForm>;

TEST_F(IndicatorsChapterTest, TheGaugeIsFullWhenAllIsCopied) {
    EXPECT_EQ(Main().CopyAll({L"a", L"b", L"c"})->GetPercentDone(), 100);
    EXPECT_EQ(Main().Copied, 3);
}

TEST_F(IndicatorsChapterTest, TheLinkLeadsOn) {
    const TQV7SkinLinkLabel* link = Main().MakeLink();
    Input.ClickAt(Main().GetHandle(), link->GetLeft() + 5, link->GetTop() + 5);
    EXPECT_EQ(Main().Clicks, 1);
}

TEST_F(IndicatorsChapterTest, TheSplitterKeepsTheLeastSizes) {
    auto* tree = new TPanel(&Main());
    auto* list = new TPanel(&Main());
    tree->SetWidth(160);
    tree->SetParent(&Main());
    list->SetParent(&Main());
    Main().Split(tree, list);
    const auto drag = [&](int to) {
        POINT from{tree->GetWidth() + 1, 50}, end{to, 50};
        ::ClientToScreen(Main().GetHandle(), &from);
        ::ClientToScreen(Main().GetHandle(), &end);
        Input.Drag(from, end);
    };
    drag(40);
    EXPECT_EQ(tree->GetWidth(), 120);
    drag(490);
    EXPECT_EQ(list->GetWidth(), 200);
}

}  // namespace
