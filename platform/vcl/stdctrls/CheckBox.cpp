#include "platform/vcl/stdctrls/CheckBox.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/CheckedActionLink.h"

namespace vcl {

class TCustomCheckBox::TActionLink final : public TCheckedActionLink {
public:
    explicit TActionLink(TCustomCheckBox& client) : TCheckedActionLink(client), FCheckBox(client) {}

protected:
    [[nodiscard]] bool IsClientChecked() const override { return FCheckBox.GetChecked(); }
    void CheckClient(bool value) override { FCheckBox.ShowState(value ? cbChecked : cbUnchecked); }

private:
    TCustomCheckBox& FCheckBox;
};

const TMetaClass& TCustomCheckBox::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomCheckBox>(L"TCustomCheckBox", TButtonControl::StaticClass());
    return meta;
}

TCustomCheckBox::TCustomCheckBox(TComponent* AOwner) : TButtonControl(AOwner) {
    SetBounds(0, 0, 97, 17);
}

void TCustomCheckBox::SetState(TCheckBoxState value) {
    if (value == FState) return;
    ShowState(value);
    if (!IsInState(csLoading)) Click();
}

void TCustomCheckBox::ShowState(TCheckBoxState value) {
    FState = value;
    if (HandleAllocated()) ::SendMessageW(WindowHandle(), BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void TCustomCheckBox::ActionChange(TObject* sender, bool checkDefaults) {
    const TLifeGuard guard(*this);
    TButtonControl::ActionChange(sender, checkDefaults);
    if (!guard.IsAlive()) return;
    const auto* action = dynamic_cast<const TBasicAction*>(sender);
    const TActionValues* values = action ? action->Values() : nullptr;
    if (values && (!checkDefaults || FState == cbUnchecked))
        ShowState(values->Checked ? cbChecked : cbUnchecked);
}

std::unique_ptr<TBasicActionLink> TCustomCheckBox::CreateActionLink() {
    return std::make_unique<TActionLink>(*this);
}

bool TCustomCheckBox::IsStateStored() const {
    const auto* link = dynamic_cast<const TActionLink*>(GetActionLink());
    return !link || !link->IsCheckedLinked();
}

void TCustomCheckBox::SetAlignment(TAlignment value) {
    if (value == FAlignment) return;
    FAlignment = value;
    RecreateWnd();
}

void TCustomCheckBox::CreateParams(TCreateParams& params) {
    TButtonControl::CreateParams(params);
    params.Style |= BS_3STATE | (FAlignment == taLeftJustify ? DWORD{BS_LEFTTEXT} : 0U);
}

void TCustomCheckBox::CreateWnd() {
    TButtonControl::CreateWnd();
    ::SendMessageW(WindowHandle(), BM_SETCHECK, static_cast<WPARAM>(FState), 0);
}

void TCustomCheckBox::Toggle() {
    switch (FState) {
        case cbUnchecked:
            SetState(FAllowGrayed ? cbGrayed : cbChecked);
            break;
        case cbChecked:
            SetState(cbUnchecked);
            break;
        case cbGrayed:
            SetState(cbChecked);
            break;
    }
}

void TCustomCheckBox::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_COMMAND:
            if (message.WParamHi() == BN_CLICKED) Toggle();
            break;
        case CM_DIALOGCHAR:
            if (IsAccel(static_cast<wchar_t>(message.CharCode()), GetCaption()) && CanFocus()) {
                message.Result = 1;
                const TLifeGuard guard(*this);
                SetFocus();
                if (guard.IsAlive() && Focused()) Toggle();
            } else {
                TButtonControl::Dispatch(message);
            }
            break;
        default:
            TButtonControl::Dispatch(message);
    }
}

const TMetaClass& TCheckBox::StaticClass() {
    using C = TCheckBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TCheckBox", TCustomCheckBox::StaticClass())
            .With(PlacementRows)
            .With(ParentColorRows)
            .With(FontRows)
            .With(StateRows)
            .With(TabRows)
            .With(ActionRows)
            .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taRightJustify)
            .Property(L"AllowGrayed", &C::GetAllowGrayed, &C::SetAllowGrayed, false)
            .Property(L"Checked", &C::GetChecked, &C::SetChecked, false)
            .NotStored()
            .Property(L"State", &C::GetState, &C::SetState, cbUnchecked)
            .Stored(&C::IsStateStored)
            .Property(L"WordWrap", &C::GetWordWrap, &C::SetWordWrap, false)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows)
            .With(KeyRows);
    return meta;
}

}  // namespace vcl
