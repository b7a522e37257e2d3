#include <memory>
#include <string>

#include "bench/Bench.h"
#include "designer/model/Arranging.h"
#include "designer/surface/DesignSurface.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"

namespace {

using namespace designer;

constexpr int ControlCount = 1000;
constexpr int ColumnCount = 50;
/// Pixels from one control to the next.
constexpr int Pitch = 16;
constexpr int ChosenCount = 10;
/// One frame of a screen that shows 60 a second.
constexpr double FrameNs = 16e6;

String FormOfButtons() {
    String text = L"object Form1: TForm1 BorderStyle = bsNone ClientWidth = 816 ClientHeight = 324\n";
    for (int i = 0; i < ControlCount; ++i)
        text += Format(L"object Button%d: TButton Left = %d Top = %d Width = 14 Height = 14 end\n", i + 1,
                       8 + i % ColumnCount * Pitch, 2 + i / ColumnCount * Pitch);
    return text + L"end";
}

/// A designer's surface with a large form.
class TLargeForm {
public:
    /// Two of them have room on a small screen, since what is covered costs nothing.
    explicit TLargeForm(int top) : FHost(std::make_unique<TForm>(nullptr)) {
        RegisterClass(TButton::StaticClass());
        FDocument.Begin(ParseFormText(FormOfButtons()));
        FHost->SetBorderStyle(bsNone);
        FHost->SetBounds(0, top, 900, 360);
        FSurface = new TDesignSurface(FHost.get(), FDocument);
        FSurface->SetParent(FHost.get());
        FDocument.OnChange = [this] { FSurface->UpdateMarks(); };
        FHost->Show();
        FHost->Update();
    }
    ~TLargeForm() {
        FDocument.OnChange.Clear();
        delete FSurface;
    }
    TLargeForm(const TLargeForm&) = delete;
    TLargeForm& operator=(const TLargeForm&) = delete;

    void Choose() {
        std::vector<TComponent*> chosen;
        for (int i = 0; i < ChosenCount; ++i)
            chosen.push_back(FDocument.Root().GetComponent(i * 37));
        FDocument.Selection().Set(chosen);
    }
    void ChooseOne() { FDocument.Selection().SetOnly(FDocument.Root().GetComponent(0)); }
    void Press(TPoint place) { Send(FDocument.Root(), WM_LBUTTONDOWN, place); }
    /// One move of the mouse, with all the painting that follows.
    void MoveMouse() {
        FStep = (FStep + 8) % 160;
        const TPoint place =
            FSurface->ScreenToClient(FDocument.Root().ClientToScreen({40 + FStep, 40 + FStep / 2}));
        Send(*FSurface, WM_MOUSEMOVE, place);
        ::RedrawWindow(FDocument.Root().WindowHandle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    /// The same by the system's own means: the windows one by one to another place, and the painting.
    void MoveWindows() {
        FPeerStep = (FPeerStep + 8) % 160;
        for (TComponent* component : FDocument.Selection().Items()) {
            const auto& control = static_cast<TWinControl&>(*component);
            ::SetWindowPos(control.WindowHandle(), nullptr, control.GetLeft() + FPeerStep,
                           control.GetTop() + FPeerStep / 2, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
        ::RedrawWindow(FDocument.Root().WindowHandle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    void SizeWindow() {
        FPeerStep = (FPeerStep + 8) % 160;
        const auto& control = static_cast<TWinControl&>(*FDocument.Selection().Leader());
        ::SetWindowPos(control.WindowHandle(), nullptr, 0, 0, 14 + FPeerStep, 14 + FPeerStep / 2,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        ::RedrawWindow(FDocument.Root().WindowHandle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    void Write() { bench::Use(FormToText(FDocument.Document()).data()); }
    void Parse() { bench::Use(ParseFormText(FromUtf8(FDocument.Text())).Root.Name.data()); }
    void Nudge() {
        FStep = FStep == 0 ? 1 : 0;
        MoveSelection(FDocument, FStep == 0 ? -8 : 8, 0);
    }
    void UndoAndRedo() {
        FDocument.Undo();
        FDocument.Redo();
    }
    void Cancel() { FSurface->CancelDrag(); }

private:
    static void Send(TWinControl& control, UINT message, TPoint place) {
        ::SendMessageW(control.WindowHandle(), message, MK_LBUTTON, TMessage::PackPoint(place));
    }

    TDesignDocument FDocument;
    std::unique_ptr<TForm> FHost;
    TDesignSurface* FSurface = nullptr;
    // Apart, so that each goes through all places: how much a control covers depends on them.
    int FStep = 0;
    int FPeerStep = 0;
};

void Run(bench::Runner& runner) {
    const std::string drag = "designer: drag 10 of 1,000 controls, one move";
    const std::string size = "designer: size one of 1,000 controls, one move";
    const std::string nudge = "designer: one edit on a form of 1,000 controls";
    const std::string undo = "designer: undo and redo it";
    if (!runner.Wants(drag) && !runner.Wants(size) && !runner.Wants(nudge) && !runner.Wants(undo)) return;
    TLargeForm form(0);
    {
        TLargeForm peer(370);
        peer.Choose();
        form.Choose();
        form.Press({12, 8});
        runner.Row(
            drag, "moving the ten windows", {.Nanoseconds = FrameNs}, [&] { form.MoveMouse(); },
            [&] { peer.MoveWindows(); });
        form.Cancel();
        form.ChooseOne();
        peer.ChooseOne();
        form.Press({21, 15});
        runner.Row(
            size, "sizing the window", {.Nanoseconds = FrameNs}, [&] { form.MoveMouse(); },
            [&] { peer.SizeWindow(); });
        form.Cancel();
    }
    runner.Row(
        nudge, "writing the form as text", {}, [&] { form.Nudge(); }, [&] { form.Write(); });
    runner.Row(
        undo, "parsing the form's text", {}, [&] { form.UndoAndRedo(); }, [&] { form.Parse(); });
}

const bench::Suite Suite("designer", Run);

}  // namespace
