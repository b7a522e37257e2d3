#include "platform/tms/CurvyEdit.h"

#include <algorithm>

#include "platform/tms/CurvyRows.h"
#include "platform/vcl/controls/InnerEditor.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Edit.h"

namespace tms {
namespace {

/// Pixels between the edge and the text.
constexpr int TextMargin = 6;

/// The editor inside, without room of its own beside the text.
class TBareEdit final : public TEdit {
public:
    using TEdit::TEdit;

protected:
    void Dispatch(TMessage& message) override {
        TEdit::Dispatch(message);
        // The system's margins are those of the font now.
        if (message.Msg == WM_SETFONT)
            ::SendMessageW(WindowHandle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    }
};

}  // namespace

const TMetaClass& TCurvyEdit::StaticClass() {
    using C = TCurvyEdit;
    static const TMetaClass meta =
        CurvyRows(DefineClass<C>(L"TCurvyEdit", TCurvyControl::StaticClass())
                      .With(PlacementRows)
                      .With(FontRows)
                      .With(StateRows)
                      .With(TabRows)
                      .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taLeftJustify)
                      .Property(L"CharCase", &C::GetCharCase, &C::SetCharCase, ecNormal)
                      .Property(L"MaxLength", &C::GetMaxLength, &C::SetMaxLength, 0)
                      .Property(L"PasswordChar", &C::GetPasswordChar, &C::SetPasswordChar, 0)
                      .Property(L"ReadOnly", &C::GetReadOnly, &C::SetReadOnly, false)
                      .Property(L"Text", &C::GetText, &C::SetText)
                      .Property(L"TextHint", &C::GetTextHint, &C::SetTextHint, String())
                      .With(MouseRows)
                      .With(KeyRows)
                      .With(ResizeRows)
                      .Event(L"OnChange", &C::OnChange),
                  8);
    return meta;
}

TCurvyEdit::TCurvyEdit(TComponent* AOwner) : TCurvyControl(AOwner), FEdit(new TBareEdit(nullptr)) {
    ControlStyle = ControlStyle + TControlStyle{csSetCaption, csCaptureMouse, csClickEvents, csDoubleClicks};
    SetBounds(0, 0, 121, 25);
    SetTabStop(true);
    FEdit->SetBorderStyle(bsNone);
    FEdit->SetAutoSize(false);
    // The curvy editor is the stop of the Tab key and passes the focus on.
    FEdit->SetTabStop(false);
    FEdit->SetParentFont(true);
    FEdit->SetParent(this);
    FEdit->OnChange = [this](TObject*) { Change(); };
    FEdit->OnClick = [this](TObject*) { Click(); };
    FEdit->OnDblClick = [this](TObject*) { DblClick(); };
    FEdit->OnKeyDown = [this](TObject*, WORD& key, TShiftState shift) { KeyDown(key, shift); };
    FEdit->OnKeyPress = [this](TObject*, wchar_t& key) { KeyPress(key); };
    FEdit->OnKeyUp = [this](TObject*, WORD& key, TShiftState shift) { KeyUp(key, shift); };
    LookChanged();
    PlaceEdit();
}

TCurvyEdit::~TCurvyEdit() {
    delete FEdit;
}

// --- what the editor inside keeps

wchar_t TCurvyEdit::GetPasswordChar() const {
    return FEdit->GetPasswordChar();
}
void TCurvyEdit::SetPasswordChar(wchar_t value) {
    FEdit->SetPasswordChar(value);
}
bool TCurvyEdit::GetReadOnly() const {
    return FEdit->GetReadOnly();
}
void TCurvyEdit::SetReadOnly(bool value) {
    FEdit->SetReadOnly(value);
}
int TCurvyEdit::GetMaxLength() const {
    return FEdit->GetMaxLength();
}
void TCurvyEdit::SetMaxLength(int value) {
    FEdit->SetMaxLength(value);
}
TAlignment TCurvyEdit::GetAlignment() const {
    return FEdit->GetAlignment();
}
void TCurvyEdit::SetAlignment(TAlignment value) {
    FEdit->SetAlignment(value);
}
TEditCharCase TCurvyEdit::GetCharCase() const {
    return FEdit->GetCharCase();
}
void TCurvyEdit::SetCharCase(TEditCharCase value) {
    FEdit->SetCharCase(value);
}
String TCurvyEdit::GetTextHint() const {
    return FEdit->GetTextHint();
}
void TCurvyEdit::SetTextHint(const String& value) {
    FEdit->SetTextHint(value);
}
void TCurvyEdit::SelectAll() {
    FEdit->SelectAll();
}
String TCurvyEdit::GetTextBuf() const {
    return FEdit->GetText();
}
void TCurvyEdit::SetTextBuf(const String& value) {
    FEdit->SetText(value);
}

void TCurvyEdit::Change() {
    OnChange(this);
}

// --- look and place

void TCurvyEdit::LookChanged() {
    FEdit->SetColor(GetLook().Color);
    TCurvyControl::LookChanged();
}

/// In the middle of the height, with room for the round ends.
void TCurvyEdit::PlaceEdit() {
    const int height = std::min(EditorLineHeight(GetFont()), std::max(GetHeight() - 4, 1));
    FEdit->SetBounds(TextMargin, (GetHeight() - height) / 2, std::max(GetWidth() - 2 * TextMargin, 0),
                     height);
}

void TCurvyEdit::Resize() {
    PlaceEdit();
    TCurvyControl::Resize();
}

void TCurvyEdit::Loaded() {
    TCurvyControl::Loaded();
    PlaceEdit();
}

// --- focus

void TCurvyEdit::SetFocus() {
    FEdit->SetFocus();
}

bool TCurvyEdit::Focused() const {
    return FEdit->Focused();
}

void TCurvyEdit::SetEnabled(bool value) {
    const TLifeGuard guard(*this);
    TCurvyControl::SetEnabled(value);
    if (guard.IsAlive()) FEdit->SetEnabled(value);
}

void TCurvyEdit::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    if (message.Msg == CM_CHILDKEY && TakeTabBack(*this, message)) {
        message.Result = 1;
        return;
    }
    TCurvyControl::Dispatch(message);
    if (!guard.IsAlive()) return;
    switch (message.Msg) {
        case WM_SETFOCUS:
            // A handler may have closed the form, or moved the focus on.
            if (Focused() && FEdit->CanFocus()) FEdit->SetFocus();
            return;
        case CM_FONTCHANGED:
            return PlaceEdit();
        default:
            return;
    }
}

}  // namespace tms
