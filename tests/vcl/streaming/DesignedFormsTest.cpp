#include "tests/vcl/streaming/DesignedForms.h"

#include "platform/vcl/streaming/FormResources.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

using Log = std::vector<String>;

class DesignedFormsTest : public ReaderTest {
protected:
    FrameClasses Frames;
};

TEST_F(DesignedFormsTest, AConstructorReadsTheFormOfItsClass) {
    TSampleBase form(nullptr);
    EXPECT_EQ(form.GetName(), L"SampleBase");
    EXPECT_EQ(form.Caption, L"Base");
    EXPECT_EQ(form.Find(L"First").Width, 10);
    EXPECT_EQ(form.Find(L"First").Partner, &form.Find(L"Second"));
    form.OnClick(nullptr);
    EXPECT_EQ(form.Clicks, 100);
    EXPECT_EQ(TSample::TakeLog(),
              (Log{L"Loaded SampleBase", L"Base", L"Loaded First with Second", L"Loaded Second"}));
}

TEST_F(DesignedFormsTest, ADerivedFormChangesAndExtendsWhatItInherits) {
    TSampleDerived form(nullptr);
    EXPECT_EQ(form.GetName(), L"SampleDerived");
    EXPECT_EQ(form.Caption, L"Derived");
    EXPECT_EQ(form.Find(L"First").Width, 11);
    EXPECT_EQ(form.Find(L"Second").Width, 20);
    EXPECT_EQ(form.Find(L"Added").GetParentComponent(), &form.Find(L"First"));
    EXPECT_EQ(form.Find(L"Added").Partner, &form.Find(L"Second"));
    EXPECT_EQ(form.Children().front()->GetName(), L"Third");
    EXPECT_EQ(form.GetComponentCount(), 4);
    form.OnClick(nullptr);
    EXPECT_EQ(form.Clicks, 1000);
}

TEST_F(DesignedFormsTest, EachClassOfAChainCompletesWhatItReads) {
    const TSampleDerived form(nullptr);
    EXPECT_EQ(TSample::TakeLog(), (Log{L"Loaded SampleBase", L"Base", L"Loaded First with Second",
                                       L"Loaded Second", L"Constructing with 10", L"Loaded SampleDerived",
                                       L"Base", L"Derived", L"Loaded Added with Second", L"Loaded Third"}));
}

TEST_F(DesignedFormsTest, InheritedComponentsTakeNewValuesAsAtRunTime) {
    TSampleDerived form(nullptr);
    const TSample& first = form.Find(L"First");
    EXPECT_TRUE(first.StateAtLimit.Contains(csReading));
    EXPECT_FALSE(first.StateAtLimit.Contains(csLoading));
    EXPECT_EQ(first.LoadedCount, 1);
    EXPECT_FALSE(first.IsInState(csReading));
}

TEST_F(DesignedFormsTest, TellsWhenNoClassOfTheChainHasAForm) {
    TSample sample(nullptr);
    EXPECT_FALSE(InitInheritedComponent(sample, TComponent::StaticClass()));
    EXPECT_FALSE(sample.IsInState(csLoading));
}

TEST_F(DesignedFormsTest, ReadsAWholeChainInOneStepAndCompletesItOnce) {
    TSampleLate form(nullptr);
    EXPECT_EQ(TSample::TakeLog(), (Log{L"Loaded SampleLate", L"Loaded First with Second", L"Loaded Second",
                                       L"Loaded Third with First"}));
    EXPECT_TRUE(form.Find(L"First").StateAtLimit.Contains(csLoading));
}

TEST_F(DesignedFormsTest, AFormThatCannotBeReadFreesWhatItMade) {
    try {
        const TSampleSpoilt form(nullptr);
        FAIL() << "nothing raised";
    } catch (const EFormError& error) {
        EXPECT_STREQ(error.what(),
                     "TSAMPLESPOILT(5,5): SampleSpoilt.Bad.Widht: TSample has no property Widht");
    }
    EXPECT_EQ(Leaks(), "");
}

TEST_F(DesignedFormsTest, ReadsResourcesByName) {
    TSampleForm form(nullptr);
    EXPECT_THROW(ReadComponentRes(GetModuleHandleW(nullptr), L"TNOTHING", &form), EResNotFound);
    TSampleBase other(nullptr);
    TComponent* read = nullptr;
    EXPECT_THROW(read = ReadComponentRes(GetModuleHandleW(nullptr), L"TSAMPLEBASE", &other), EFormError)
        << "its names are taken";
    EXPECT_EQ(read, nullptr);
}

TEST_F(DesignedFormsTest, FramesBringTheirComponentsAlong) {
    TSampleForm& form = ReadWith(
        LR"(
        inline Frame1: TSampleFrame
          Caption = 'Changed'
          inherited Button: TSample
            Limit = 7
            OnCheck = SampleCheck
          end
          object Extra: TSample end
        end
        object Outside: TSample Partner = Frame1.Button OnClick = Frame1.FrameClick end)");
    auto& frame = dynamic_cast<TSampleFrame&>(form.Find(L"Frame1"));
    auto& button = dynamic_cast<TSample&>(*frame.FindComponent(L"Button"));
    EXPECT_TRUE(frame.IsInState(csInline));
    EXPECT_EQ(frame.GetOwner(), &form);
    EXPECT_EQ(frame.Caption, L"Changed");
    EXPECT_EQ(button.GetOwner(), &frame);
    EXPECT_EQ(button.Width, 30);
    EXPECT_EQ(button.Partner, frame.FindComponent(L"Label"));
    EXPECT_EQ(form.Find(L"Extra").GetParentComponent(), &frame);
    EXPECT_EQ(form.Find(L"Outside").Partner, &button);
    button.OnClick(nullptr);
    form.Find(L"Outside").OnClick(nullptr);
    EXPECT_EQ(frame.Clicks, 2);
    EXPECT_TRUE(button.OnCheck.IsAssigned());
}

TEST_F(DesignedFormsTest, FramesAreCompletedWithTheirForm) {
    ReadWith(
        L"inline Frame1: TSampleWideFrame inherited Button: TSample Limit = 1 end end object Last: TSample "
        L"end");
    EXPECT_EQ(TSample::TakeLog(), (Log{L"Loaded Form", L"Loaded Frame1", L"Loaded Button with Label",
                                       L"Loaded Label", L"Loaded Last"}));
    const TComponent* button = Form->Find(L"Frame1").FindComponent(L"Button");
    EXPECT_TRUE(dynamic_cast<const TSample*>(button)->StateAtLimit.Contains(csLoading));
    EXPECT_EQ(dynamic_cast<const TSample*>(button)->Width, 31);
    EXPECT_EQ(Form->Find(L"Frame1").Width, 300);
}

TEST_F(DesignedFormsTest, AFrameMadeInCodeIsCompleteAtOnce) {
    const TSampleFrame frame(nullptr);
    EXPECT_EQ(TSample::TakeLog(), (Log{L"Loaded SampleFrame", L"Loaded Button with Label", L"Loaded Label"}));
}

TEST_F(DesignedFormsTest, TwoFramesOfAClassKeepTheirComponentsApart) {
    TSampleForm& form = ReadWith(L"inline A: TSampleFrame end inline B: TSampleFrame end");
    const auto* a = dynamic_cast<TSample*>(form.Find(L"A").FindComponent(L"Button"));
    const auto* b = dynamic_cast<TSample*>(form.Find(L"B").FindComponent(L"Button"));
    EXPECT_NE(a, b);
    EXPECT_NE(a->Partner, b->Partner);
}

TEST_F(DesignedFormsTest, AnErrorInsideAFrameFreesTheFrameToo) {
    EXPECT_EQ(RaisedWith(L"inline A: TSampleFrame inherited Button: TSample Widht = 5 end end"),
              "Form.dfm(2,50): Form.A.Button.Widht: TSample has no property Widht");
    EXPECT_EQ(Form->GetComponentCount(), 0);
    EXPECT_EQ(RaisedWith(L"inline A: TSampleFrame inherited Knob: TSample end end"),
              "Form.dfm(2,24): Form.A.Knob: No ancestor has a component named Knob");
}

TEST_F(DesignedFormsTest, AFrameIsWrittenAsWhatDiffersFromItsClass) {
    const std::string text =
        "object Form: TSampleForm\r\n"
        "  Always = ''\r\n"
        "  inline Frame1: TSampleFrame\r\n"
        "    Caption = 'Changed'\r\n"
        "    inherited Button: TSample\r\n"
        "      Limit = 7\r\n"
        "      Partner = nil\r\n"
        "      OnClick = SampleClick\r\n"
        "      OnCheck = SampleCheck\r\n"
        "    end\r\n"
        "  end\r\n"
        "  object Outside: TSample\r\n"
        "    Always = ''\r\n"
        "    Partner = Frame1.Button\r\n"
        "    OnClick = Frame1.FrameClick\r\n"
        "  end\r\n"
        "end\r\n";
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(Read(FromUtf8(text)))), text);
}

TEST_F(DesignedFormsTest, AFrameKeepsItsOwnHandlersUnwritten) {
    const std::string text =
        "object Form: TSampleForm\r\n"
        "  Always = ''\r\n"
        "  inline TSampleFrame\r\n"
        "  end\r\n"
        "  inline Frame2: TSampleFrame\r\n"
        "    inherited Label: TSample\r\n"
        "      OnClick = Frame2.FrameClick\r\n"
        "    end\r\n"
        "  end\r\n"
        "end\r\n";
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(Read(FromUtf8(text)))), text);
}

TEST_F(DesignedFormsTest, AnInheritedFormIsWrittenAsWhatDiffersFromItsAncestor) {
    TSampleDerived form(nullptr);
    TSampleBase ancestor(nullptr);
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(form, &ancestor)),
              "inherited SampleDerived: TSampleDerived\r\n"
              "  Caption = 'Derived'\r\n"
              "  OnClick = DerivedClick\r\n"
              "  object Third: TSample [0]\r\n"
              "    Always = ''\r\n"
              "  end\r\n"
              "  inherited First: TSample [1]\r\n"
              "    Width = 11\r\n"
              "    Limit = 5\r\n"
              "    object Added: TSample\r\n"
              "      Always = ''\r\n"
              "      Partner = Second\r\n"
              "    end\r\n"
              "  end\r\n"
              "  inherited Second: TSample [2]\r\n"
              "  end\r\n"
              "end\r\n");
}

TEST_F(DesignedFormsTest, AnUnchangedInheritedFormIsAlmostEmpty) {
    TSampleBase form(nullptr);
    TSampleBase ancestor(nullptr);
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(form, &ancestor)),
              "inherited SampleBase: TSampleBase\r\nend\r\n");
    form.Find(L"First").Partner = nullptr;
    form.OnClick.Clear();
    form.GetLines().Add(L"x");
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(form, &ancestor)),
              "inherited SampleBase: TSampleBase\r\n"
              "  Lines.Strings = (\r\n"
              "    'x')\r\n"
              "  OnClick = nil\r\n"
              "  inherited First: TSample\r\n"
              "    Partner = nil\r\n"
              "  end\r\n"
              "end\r\n");
}

}  // namespace
}  // namespace vcl
