#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

class TFieldForm : public TSampleForm {
public:
    using TSampleForm::TSampleForm;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TFieldForm>(L"TFieldForm", TSampleForm::StaticClass())
                                           .Component<&TFieldForm::A>(L"A")
                                           .Component<&TFieldForm::Timer>(L"Timer");
        return meta;
    }
    TSample* A = nullptr;
    TSampleTimer* Timer = nullptr;
};

class FormFieldsTest : public ReaderTest {};

TEST_F(FormFieldsTest, AreSetToTheComponentsOfTheFile) {
    TFieldForm form(nullptr);
    const auto document =
        ParseFormText(L"object Form: TFieldForm object A: TSample object Timer: TSampleTimer end end end");
    TReader(document).ReadRootComponent(&form);
    EXPECT_EQ(form.A, form.FindComponent(L"A"));
    EXPECT_EQ(form.Timer, form.FindComponent(L"Timer"));
}

TEST_F(FormFieldsTest, OfAnotherClassAreAnErrorAndNothingStays) {
    TFieldForm form(nullptr);
    const auto document = ParseFormText(
        L"object Form: TFieldForm object A: TSample end object Timer: TSample end end", L"F.dfm");
    try {
        TReader(document).ReadRootComponent(&form);
        FAIL() << "nothing raised";
    } catch (const EFormError& error) {
        EXPECT_EQ(error.Message(),
                  L"F.dfm(1,47): Form.Timer: Timer of TFieldForm holds a TSampleTimer, not a TSample");
        EXPECT_EQ(error.Problem().Kind, TFormProblemKind::WrongType);
    }
    EXPECT_EQ(form.GetComponentCount(), 0);
    EXPECT_EQ(form.A, nullptr);
}

}  // namespace
}  // namespace vcl
