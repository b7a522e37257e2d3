#include <memory>

#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

const TAnchors LeftTop{akLeft, akTop};
const TAnchors LeftTopRight{akLeft, akTop, akRight};

/// A form with one panel, which goes into a file and back.
class AnchorsInFormFiles : public FormTest {
protected:
    using Form = std::unique_ptr<TForm>;
    static void SetUpTestSuite() { RegisterStandardClasses(); }

    static Form Read(const TFormDocument& document, Form form = std::make_unique<TForm>(nullptr)) {
        TReader(document).ReadRootComponent(form.get());
        return form;
    }
    /// A form whose panel has these properties.
    static Form With(const String& properties) {
        return Read(ParseFormText(
            L"object Form: TForm\n object Panel: TPanel\n" + properties + L"\n end\nend", L"Form.dfm"));
    }
    static TPanel& PanelOf(const Form& form) { return dynamic_cast<TPanel&>(*form->FindComponent(L"Panel")); }
    /// What the file says about the panel's anchors; null when it says nothing.
    static const TFormProperty* AnchorsOf(const TFormDocument& document) {
        const TFormObject* panel = document.Root.FindObject(L"Panel");
        return panel ? panel->FindProperty(L"Anchors") : nullptr;
    }
    static TFormDocument Written(const Form& form) { return TWriter().WriteRootComponent(*form); }
    /// The anchors of `form` after its way through a file that inherits `ancestor`.
    static TAnchors AfterInheriting(const Form& form, const Form& ancestor) {
        const TFormDocument base = Written(ancestor);
        const TFormDocument document = TWriter().WriteRootComponent(*form, ancestor.get());
        return PanelOf(Read(document, Read(base))).GetAnchors();
    }
};

TEST_F(AnchorsInFormFiles, ThoseOfTheAlignmentAreLeftOut) {
    for (const wchar_t* align : {L"alNone", L"alTop", L"alBottom", L"alLeft", L"alRight", L"alClient"}) {
        const Form form = With(String(L"Align = ") + align);
        const TFormDocument document = Written(form);
        EXPECT_EQ(AnchorsOf(document), nullptr) << ToUtf8(align);
        EXPECT_EQ(PanelOf(Read(document)).GetAnchors(), PanelOf(form).GetAnchors()) << ToUtf8(align);
    }
}

TEST_F(AnchorsInFormFiles, AnAlignedControlKeepsLeftAndTop) {
    const Form form = With(L"Align = alTop Anchors = [akLeft, akTop]");
    EXPECT_EQ(PanelOf(form).GetAnchors(), LeftTop);
    const TFormDocument document = Written(form);
    ASSERT_NE(AnchorsOf(document), nullptr);
    EXPECT_EQ(PanelOf(Read(document)).GetAnchors(), LeftTop);
}

TEST_F(AnchorsInFormFiles, TheyMayStandBeforeTheAlignment) {
    EXPECT_EQ(PanelOf(With(L"Anchors = [akLeft, akTop] Align = alBottom")).GetAnchors(), LeftTop);
}

TEST_F(AnchorsInFormFiles, AfterLoadingTheyFollowTheAlignmentAgain) {
    const Form form = With(L"Anchors = [akLeft, akTop] Align = alNone");
    PanelOf(form).SetAlign(alTop);
    EXPECT_EQ(PanelOf(form).GetAnchors(), LeftTopRight);
}

TEST_F(AnchorsInFormFiles, InAnInheritedFormTheUsualOnesCanComeBack) {
    const Form ancestor = With(L"Anchors = [akLeft, akTop, akRight]");
    const Form form = With(L"");
    EXPECT_EQ(AfterInheriting(form, ancestor), LeftTop);
}

TEST_F(AnchorsInFormFiles, InAnInheritedFormTheyOutliveAnotherAlignment) {
    // The same anchors, once those of the alignment and once of its own.
    const Form ancestor = With(L"Align = alTop");
    const Form form = With(L"Align = alNone Anchors = [akLeft, akTop, akRight]");
    ASSERT_EQ(PanelOf(form).GetAnchors(), PanelOf(ancestor).GetAnchors());
    EXPECT_EQ(AfterInheriting(form, ancestor), LeftTopRight);
}

TEST_F(AnchorsInFormFiles, AnInheritedFormSaysNothingNew) {
    const wchar_t* same = L"Align = alLeft Anchors = [akTop, akRight]";
    const Form ancestor = With(same);
    const Form form = With(same);
    EXPECT_EQ(AnchorsOf(TWriter().WriteRootComponent(*form, ancestor.get())), nullptr);
}

}  // namespace
}  // namespace test
