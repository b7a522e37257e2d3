#include "platform/vcl/streaming/GlobalComponents.h"
#include "platform/vcl/streaming/PendingReferences.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

std::vector<TComponent*>& Globals() {
    static std::vector<TComponent*> globals;
    return globals;
}

TComponent* FindGlobal(StringView name) {
    for (TComponent* global : Globals()) {
        if (SameText(global->GetName(), name)) return global;
    }
    return nullptr;
}

class ReferencesTest : public ReaderTest {
protected:
    void SetUp() override {
        ReaderTest::SetUp();
        RegisterFindGlobalComponent(&FindGlobal);
    }
    void TearDown() override {
        UnRegisterFindGlobalComponent(&FindGlobal);
        Globals().clear();
        ReaderTest::TearDown();
    }
    /// Reads a form and makes it known under its name, before it is read.
    static std::unique_ptr<TSampleForm> Open(const String& text) {
        auto form = std::make_unique<TSampleForm>(nullptr);
        Globals().push_back(form.get());
        const auto document = ParseFormText(text, L"Open.dfm");
        TReader(document).ReadRootComponent(form.get());
        return form;
    }
};

TEST_F(ReferencesTest, ReachComponentsBeforeAndBehindThem) {
    TSampleForm& form = ReadWith(
        LR"(
        object A: TSample Partner = B end
        object B: TSample Partner = a end)");
    EXPECT_EQ(form.Find(L"A").Partner, &form.Find(L"B"));
    EXPECT_EQ(form.Find(L"B").Partner, &form.Find(L"A"));
}

TEST_F(ReferencesTest, KnowTheRootByItsNameAndAsOwner) {
    TSampleForm& form = ReadWith(
        L"object A: TSample Partner = Form Anyone = Owner end object B: TSample Partner = Form.A end");
    EXPECT_EQ(form.Find(L"A").Partner, &form);
    EXPECT_EQ(form.Find(L"A").Anyone, &form);
    EXPECT_EQ(form.Find(L"B").Partner, &form.Find(L"A"));
}

TEST_F(ReferencesTest, EndWithNil) {
    TSampleForm& form = ReadWith(L"Partner = A object A: TSample end");
    const auto document = ParseFormText(L"inherited Form: TSampleForm Partner = nil end");
    TReader(document).ReadRootComponent(&form);
    EXPECT_EQ(form.Partner, nullptr);
}

TEST_F(ReferencesTest, ReachComponentsOfFormsThatExist) {
    const auto other = Open(L"object Other: TSampleForm object Image: TSample end end");
    const auto form = Open(L"object Form: TSampleForm Partner = Other.Image Anyone = Other.Owner end");
    EXPECT_EQ(form->Partner, other->FindComponent(L"Image"));
    EXPECT_EQ(form->Anyone, other.get());
    const std::string text = FormToText(TWriter().WriteRootComponent(*form));
    EXPECT_NE(text.find("Partner = Other.Image\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Anyone = Other.Owner\r\n"), std::string::npos) << text;
    form->Partner = nullptr;
}

TEST_F(ReferencesTest, AreAnErrorWhenAnExistingFormHasNoSuchComponent) {
    const auto other = Open(L"object Other: TSampleForm end");
    try {
        Open(L"object Form: TSampleForm Partner = Other.Image end");
        FAIL() << "nothing raised";
    } catch (const EFormError& error) {
        EXPECT_STREQ(error.what(), "Open.dfm(1,36): Form.Partner: No component named Other.Image");
    }
    Globals().pop_back();
}

TEST_F(ReferencesTest, WaitForFormsThatAreReadLater) {
    const auto form = Open(
        L"object Form: TSampleForm Partner = Later.Image Style.Partner = Later.Image "
        L"Items = <item end item Partner = Later.Image end> end");
    EXPECT_EQ(form->Partner, nullptr);
    EXPECT_EQ(PendingReferenceNames(), std::vector<String>{L"Later.Image"});
    // What happens to items meanwhile does not lead the reference astray.
    form->GetItems().Delete(0);

    const auto later = Open(L"object Later: TSampleForm object Image: TSample end end");
    auto* image = dynamic_cast<TSample*>(later->FindComponent(L"Image"));
    EXPECT_EQ(form->Partner, image);
    EXPECT_EQ(form->GetStyle().Partner, image);
    EXPECT_EQ(dynamic_cast<TSampleItem&>(*form->GetItems()[0]).Partner, image);
    EXPECT_TRUE(PendingReferenceNames().empty());
}

TEST_F(ReferencesTest, AreSetBeforeTheLaterFormIsCompleted) {
    const auto form = Open(L"object Form: TSampleForm Partner = Later.Image end");
    TSample::TakeLog();
    struct TWatching : TSampleForm {
        using TSampleForm::TSampleForm;
        TSampleForm* Other = nullptr;
        TSample* Seen = nullptr;
        void Loaded() override {
            TSampleForm::Loaded();
            Seen = Other->Partner;
        }
    };
    TWatching later(nullptr);
    later.Other = form.get();
    const auto document = ParseFormText(L"object Later: TSampleForm object Image: TSample end end");
    TReader(document).ReadRootComponent(&later);
    EXPECT_EQ(later.Seen, later.FindComponent(L"Image"));
    form->Partner = nullptr;
}

TEST_F(ReferencesTest, AreGivenUpWithTheirComponent) {
    const auto form = Open(L"object Form: TSampleForm object A: TSample Partner = Later.Image end end");
    EXPECT_EQ(PendingReferenceNames(), std::vector<String>{L"Later.Image"});
    delete &form->Find(L"A");
    EXPECT_TRUE(PendingReferenceNames().empty());
}

TEST_F(ReferencesTest, AreGivenUpWithTheirItem) {
    const auto form = Open(L"object Form: TSampleForm Items = <item Partner = Later.Image end> end");
    form->GetItems().Clear();
    const auto later = Open(L"object Later: TSampleForm object Image: TSample end end");
    EXPECT_TRUE(PendingReferenceNames().empty());
}

TEST_F(ReferencesTest, ThatThePropertyRefusesAreGivenUp) {
    const auto form = Open(L"object Form: TSampleForm Partner = Later.Timer end");
    const auto later = Open(L"object Later: TSampleForm object Timer: TSampleTimer end end");
    EXPECT_EQ(form->Partner, nullptr);
    EXPECT_TRUE(PendingReferenceNames().empty());
}

TEST_F(ReferencesTest, OfAComponentCanBeRemoved) {
    const auto form = Open(L"object Form: TSampleForm object A: TSample Partner = Later.Image end end");
    RemovePendingReferences(*form);
    EXPECT_TRUE(PendingReferenceNames().empty());
}

TEST_F(ReferencesTest, OfAFormThatCannotBeReadDoNotWait) {
    TSampleForm form(nullptr);
    const auto document =
        ParseFormText(L"object Form: TSampleForm Partner = Later.Image object A: TSampleFragile end end");
    EXPECT_THROW(TReader(document).ReadRootComponent(&form), EFormError);
    EXPECT_TRUE(PendingReferenceNames().empty());
}

TEST_F(ReferencesTest, MakeNamesOfRootsUniqueAmongGlobalComponents) {
    const auto first =
        Open(L"object Form: TSampleForm object A: TSample end object B: TSample Partner = Form.A end end");
    const auto second =
        Open(L"object Form: TSampleForm object A: TSample end object B: TSample Partner = Form.A end end");
    EXPECT_EQ(second->GetName(), L"Form_1");
    EXPECT_EQ(second->Find(L"B").Partner, &second->Find(L"A"));
}

TEST(NestedComponentTest, IsFoundByTheNamesOfItsOwners) {
    TComponent root(nullptr);
    auto* frame = new TComponent(&root);
    frame->SetName(L"Frame");
    auto* button = new TComponent(frame);
    button->SetName(L"Button");
    EXPECT_EQ(FindNestedComponent(root, L"frame.BUTTON"), button);
    EXPECT_EQ(FindNestedComponent(root, L"Frame.Owner"), frame);
    EXPECT_EQ(FindNestedComponent(root, L""), &root);
    EXPECT_EQ(FindNestedComponent(root, L"Button"), nullptr);
    EXPECT_EQ(FindNestedComponent(root, L"Frame.Label.X"), nullptr);
}

}  // namespace
}  // namespace vcl
