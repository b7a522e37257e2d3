// The designer as a program of its own, killed while it is being used: what was in its files must still be
// whole, and the next start must offer the unsaved work.

#include <algorithm>
#include <filesystem>
#include <random>
#include <thread>

#include "designer/model/DesignDocument.h"
#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/Program.h"
#include "tests/support/Pump.h"
#include "tests/support/TempDir.h"

namespace designer {
namespace {

constexpr int ButtonCount = 100;
constexpr int FirstLeft = 16;
constexpr std::chrono::seconds StartLimit{20};

/// A form file as the designer writes it, with its first button there.
std::string FormWithButtonAt(int left) {
    TDesignDocument document;
    String text = L"object Form1: TForm1 BorderStyle = bsNone ClientWidth = 600 ClientHeight = 400\n";
    for (int i = 0; i < ButtonCount; ++i)
        text += Format(L"object Button%d: TButton Left = %d Top = %d Width = 24 Height = 16 end\n", i + 1,
                       i == 0 ? left : 8 + i % 16 * 32, i == 0 ? 8 : 40 + i / 16 * 24);
    document.Begin(ParseFormText(text + L"end"));
    return document.Text();
}

/// When the program is killed.
enum class TMoment {
    Any,
    WhileWriting,  ///< As soon as a file is being written.
    WorkIsKept,    ///< When there is unsaved work that it has kept.
};

class KilledDesignerTest : public test::LedgerTest {
protected:
    KilledDesignerTest() {
        RegisterStandardClasses();
        Register();
    }
    void SetUp() override {
        LedgerTest::SetUp();
        FStart = FormWithButtonAt(FirstLeft);
    }

    /// Begins with the form, works on it, kills the program at that moment and looks at what is left.
    void KillAt(TMoment moment) {
        // What the program that saved the work last had kept does not belong to this.
        std::filesystem::remove_all(Kept());
        Dir.Write(L"form.dfm", FStart);
        {
            test::RunningProgram program(L"designer.exe", Arguments(L" \"" + Dir.File(L"form.dfm") + L"\""));
            ASSERT_TRUE(Appears(program, L"TDesignerWindow", L"form.dfm"));
            const HWND form = FormWindow(program);
            ASSERT_TRUE(form);
            Choose(form);
            Work(::GetParent(form), moment);
            program.Kill();
        }
        ExpectWhole(Dir.Read(L"form.dfm"));
        FSaves += Dir.Read(L"form.dfm") != FStart ? 1 : 0;
        Recover();
    }

    [[nodiscard]] int Saves() const { return FSaves; }
    [[nodiscard]] int Recoveries() const { return FRecoveries; }

private:
    [[nodiscard]] String Arguments(const String& more) const { return L"--kept \"" + Kept() + L"\"" + more; }
    [[nodiscard]] String Kept() const { return Dir.File(L"kept"); }

    static bool Appears(const test::RunningProgram& program, const wchar_t* className, const wchar_t* text) {
        return test::PumpUntil([&] { return program.Window(className, text) != nullptr; }, StartLimit);
    }

    static HWND FormWindow(const test::RunningProgram& program) {
        return ::GetParent(program.Window(L"TButton"));
    }

    /// Presses on the first button of the form.
    static void Choose(HWND form) {
        ::PostMessageW(form, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(FirstLeft + 5, 8 + 5));
        ::PostMessageW(::GetParent(form), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }

    static void PressCtrlS() {
        const auto key = [](WORD code, DWORD flags) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = code;
            input.ki.dwFlags = flags;
            return input;
        };
        INPUT inputs[] = {key(VK_CONTROL, 0), key('S', 0), key('S', KEYEVENTF_KEYUP),
                          key(VK_CONTROL, KEYEVENTF_KEYUP)};
        ::SendInput(4, inputs, sizeof(INPUT));
    }

    /// Moves the button, and saves now and then, until that moment.
    void Work(HWND surface, TMoment moment) {
        using TClock = std::chrono::steady_clock;
        const auto turns = moment == TMoment::Any ? FRandom() % 100 : 400;
        for (unsigned turn = 0; turn < turns; ++turn) {
            ::PostMessageW(surface, WM_KEYDOWN, VK_RIGHT, 0);
            if (moment != TMoment::WorkIsKept && FRandom() % 24 == 0) PressCtrlS();
            if (moment == TMoment::WorkIsKept && !KeptWork().second.empty()) return;
            const auto next = TClock::now() + std::chrono::milliseconds(30);
            while (TClock::now() < next)
                if (moment == TMoment::WhileWriting && turn > 8 && IsWriting()) return;
        }
    }

    /// A file is being written beside the one that it will replace.
    [[nodiscard]] bool IsWriting() const {
        WIN32_FIND_DATAW found{};
        for (const String& folder : {Dir.Path(), Kept()}) {
            const HANDLE search = ::FindFirstFileW((folder + L"\\*.neu").c_str(), &found);
            if (search == INVALID_HANDLE_VALUE) continue;
            ::FindClose(search);
            return true;
        }
        return false;
    }

    /// The form with the button at one of the places where the keys have brought it.
    void ExpectWhole(const std::string& text) {
        TDesignDocument document;
        ASSERT_FALSE(text.empty());
        document.Begin(ParseFormText(FromUtf8(text)));
        const TComponent* button = document.Root().FindComponent(L"Button1");
        ASSERT_TRUE(button);
        const int left = dynamic_cast<const TControl&>(*button).GetLeft();
        EXPECT_EQ(text, FormWithButtonAt(left));
    }

    /// What the killed program kept: the form file's name and its text. Empty when there is nothing.
    [[nodiscard]] std::pair<std::string, std::string> KeptWork() const {
        for (const auto& entry : std::filesystem::directory_iterator(Kept())) {
            if (entry.path().extension() != L".arbeit") continue;
            const std::string bytes = Dir.Read(L"kept\\" + entry.path().filename().wstring());
            const std::size_t line = std::min(bytes.find('\n'), bytes.size());
            return {bytes.substr(0, line), bytes.substr(std::min(line + 1, bytes.size()))};
        }
        return {};
    }

    /// The next start offers what was kept, shows it and saves it.
    void Recover() {
        const auto [name, text] = KeptWork();
        if (name.empty() && text.empty()) return;
        EXPECT_EQ(name, ToUtf8(Dir.File(L"form.dfm")));
        ExpectWhole(text);
        test::RunningProgram program(L"designer.exe", Arguments({}));
        ASSERT_TRUE(Appears(program, L"TQV7SkinButtonMsgDlg", L"Wiederherstellen"));
        const HWND offer = program.Window(L"TQV7SkinButtonMsgDlg", L"Wiederherstellen");
        ::PostMessageW(offer, WM_KEYDOWN, VK_RETURN, 0);
        ASSERT_TRUE(Appears(program, L"TDesignerWindow", L"* form.dfm"));
        // Keys get lost while the dialog hands the focus back.
        int tries = 0;
        const auto saved = [&, &wanted = text] {
            if (tries++ % 100 == 0) PressCtrlS();
            return Dir.Read(L"form.dfm") == wanted;
        };
        ASSERT_TRUE(test::PumpUntil(saved, StartLimit));
        ++FRecoveries;
    }

    test::TempDir Dir;
    std::string FStart;
    std::mt19937 FRandom{7};
    int FSaves = 0;
    int FRecoveries = 0;
};

TEST_F(KilledDesignerTest, LeavesWholeFilesAndWorkToTakeUp) {
    KillAt(TMoment::WhileWriting);
    KillAt(TMoment::WorkIsKept);
    EXPECT_GT(Recoveries(), 0);
}

class KilledDesignerSoak : public KilledDesignerTest {};

TEST_F(KilledDesignerSoak, LeavesWholeFilesAndWorkToTakeUp) {
    for (int i = 0; i < 10 && !HasFailure(); ++i)
        for (const TMoment moment : {TMoment::Any, TMoment::WhileWriting, TMoment::WorkIsKept})
            KillAt(moment);
    EXPECT_GT(Saves(), 0);
    EXPECT_GE(Recoveries(), 10);
    RecordProperty("Saves", Saves());
    RecordProperty("Recoveries", Recoveries());
}

}  // namespace
}  // namespace designer
