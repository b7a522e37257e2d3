// Work that designers leave behind, and what stands in the way of keeping and taking it up.

#include <filesystem>

#include "designer/files/SafeFile.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

class RecoveryTest : public DesignerWindowTest {
protected:
    /// Leaves work on that file.
    void Leave(const wchar_t* keptFile, const String& formFile, const std::string& text) {
        Dir.Write(String(L"kept\\") + keptFile, ToUtf8(formFile) + "\n" + text);
    }
    [[nodiscard]] bool IsLeft(const wchar_t* keptFile) const {
        return FileTimeOf(Dir.File(String(L"kept\\") + keptFile)) != 0;
    }
    /// The work that this designer keeps.
    [[nodiscard]] std::string Kept() const {
        for (const auto& entry : std::filesystem::directory_iterator(Dir.File(L"kept")))
            if (entry.path().extension() == L".arbeit")
                return Dir.Read(L"kept\\" + entry.path().filename().wstring());
        return {};
    }
    void Offer() {
        Answers.Yes = true;
        Window->OfferLeftWork();
    }
};

std::string Lost() {
    std::string text = SampleFile;
    return text.replace(text.find("Fertig"), 6, "Verloren");
}

TEST_F(RecoveryTest, WorkIsTakenUpWhenItsFileIsGone) {
    Leave(L"1-2.arbeit", Dir.File(L"form.dfm"), Lost());
    Offer();
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_TRUE(TextHas("Caption = 'Verloren'"));
    EXPECT_TRUE(Document().IsModified());
    EXPECT_FALSE(IsLeft(L"1-2.arbeit"));
    EXPECT_TRUE(Window->Save());
    EXPECT_EQ(Dir.Read(L"form.dfm"), Document().Text());
}

TEST_F(RecoveryTest, WorkIsTakenUpWhenItsFileIsDamaged) {
    Dir.Write(L"form.dfm", "object MainForm: TMainForm\r\n  Capt");
    Leave(L"1-2.arbeit", Dir.File(L"form.dfm"), Lost());
    Offer();
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_TRUE(TextHas("Caption = 'Verloren'"));
    EXPECT_EQ(Window->File().Name(), Dir.File(L"form.dfm"));
}

TEST_F(RecoveryTest, WorkOnAnInheritedFormWithoutItsFileIsUnsaved) {
    Dir.Write(L"Base.dfm", SampleFile);
    Leave(L"1-2.arbeit", Dir.File(L"Login.dfm"),
          "inherited LoginForm: TLoginForm\r\n  inherited OkButton: TButton\r\n    Left = 40\r\n  "
          "end\r\nend\r\n");
    Offer();
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_TRUE(TextHas("Left = 40"));
    EXPECT_TRUE(Document().IsModified());
    EXPECT_NE(Kept().find("Left = 40"), std::string::npos);
}

TEST_F(RecoveryTest, ANewFormThatInheritsOneIsTakenUp) {
    Answers.File = Dir.Write(L"Base.dfm", SampleFile);
    Window->NewInheritingForm();
    dynamic_cast<TButton&>(*Document().Root().FindComponent(L"OkButton")).SetLeft(40);
    Document().Edit(L"Verschieben", [] {});
    const std::string text = Document().Text();
    ASSERT_TRUE(test::PumpUntil([&] { return Kept().find("Left = 40") != std::string::npos; })) << Kept();
    const std::string kept = Kept();
    Window.reset();
    Dir.Write(L"kept\\1-2.arbeit", kept);
    Window = MakeWindow();
    Offer();
    EXPECT_TRUE(Answers.Errors.empty());
    EXPECT_EQ(Document().Text(), text);
    EXPECT_EQ(Window->File().Name(), L"");
    EXPECT_EQ(Window->File().Title(), L"Unbenannt");
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(RecoveryTest, WorkThatCannotBeReadDoesNotStandInTheWay) {
    Leave(L"1-2.arbeit", Dir.File(L"form.dfm"), "object MainForm: TMainForm\r\n  Capt");
    const String older = Dir.File(L"kept\\1-1.arbeit");
    Leave(L"1-1.arbeit", Dir.File(L"form.dfm"), Lost());
    test::AgeFile(older);
    Offer();
    EXPECT_EQ(Answers.Errors.size(), 1u);
    EXPECT_TRUE(IsLeft(L"1-2.arbeit")) << "nobody has given it up";
    EXPECT_TRUE(TextHas("Caption = 'Verloren'"));
}

TEST_F(RecoveryTest, WorkThatIsLockedIsOfferedLater) {
    Leave(L"1-2.arbeit", Dir.File(L"form.dfm"), Lost());
    const HANDLE held = ::CreateFileW(Dir.File(L"kept\\1-2.arbeit").c_str(), GENERIC_READ, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_NO_THROW(Offer());
    EXPECT_EQ(Answers.Questions, 0);
    ::CloseHandle(held);
    Offer();
    EXPECT_EQ(Answers.Questions, 1);
    EXPECT_TRUE(TextHas("Caption = 'Verloren'"));
}

TEST_F(RecoveryTest, HalfWrittenWorkIsNeverOffered) {
    Dir.Write(L"kept\\1-2.arbeit.neu", ToUtf8(Dir.File(L"form.dfm")) + "\nobject Main");
    Offer();
    EXPECT_EQ(Answers.Questions, 0);
}

TEST_F(RecoveryTest, WorkThatCannotBeKeptIsToldAndTriedAgain) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    // What is to be written beside the kept work finds a folder of its name.
    String lock;
    for (const auto& entry : std::filesystem::directory_iterator(Dir.File(L"kept")))
        if (entry.path().extension() == L".sperre") lock = entry.path().stem().wstring();
    ASSERT_FALSE(lock.empty());
    const String beside = Dir.File(L"kept\\" + lock + L".arbeit.neu");
    ASSERT_TRUE(::CreateDirectoryW(beside.c_str(), nullptr));
    Document().Edit(L"Verschieben", [&] {
        dynamic_cast<TButton&>(*Document().Root().FindComponent(L"OkButton")).SetLeft(40);
    });
    EXPECT_TRUE(test::PumpUntil(
        [&] { return Window->Status().find(L"kann nicht geschrieben werden") != String::npos; }));
    EXPECT_EQ(Kept(), "");
    ::RemoveDirectoryW(beside.c_str());
    EXPECT_TRUE(test::PumpUntil([&] { return Kept().find("Left = 40") != std::string::npos; }));
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(RecoveryTest, TwoDesignersOnOneFileKeepTheirWorkApart) {
    Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    const auto other = MakeWindow();
    other->OpenFile(Dir.File(L"form.dfm"));
    const auto move = [](TDesignerWindow& window, int left) {
        window.Document().Edit(L"Verschieben", [&] {
            dynamic_cast<TButton&>(*window.Document().Root().FindComponent(L"OkButton")).SetLeft(left);
        });
    };
    move(*Window, 40);
    move(*other, 48);
    const auto keeps = [this](const char* part) {
        for (const auto& entry : std::filesystem::directory_iterator(Dir.File(L"kept")))
            if (Dir.Read(L"kept\\" + entry.path().filename().wstring()).find(part) != std::string::npos)
                return true;
        return false;
    };
    EXPECT_TRUE(test::PumpUntil([&] { return keeps("Left = 40") && keeps("Left = 48"); }));
    Offer();
    EXPECT_EQ(Answers.Questions, 0) << "both live";
}

}  // namespace
}  // namespace designer
