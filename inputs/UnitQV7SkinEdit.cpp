#include "inputs/UnitQV7SkinEdit.h"

#include "inputs/InputColors.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

const TMetaClass& TCustomQV7SkinEdit::StaticClass() {
    using C = TCustomQV7SkinEdit;
    static const TMetaClass meta =
        DefineClass<C>(L"TCustomQV7SkinEdit", TCurvyEdit::StaticClass())
            .Property(L"Rounding", &C::GetRounding, &C::SetRounding, InputRounding);
    return meta;
}

TCustomQV7SkinEdit::TCustomQV7SkinEdit(TComponent* AOwner) : TCurvyEdit(AOwner) {
    SetTabStop(true);
    SetRounding(InputRounding);
}

const TMetaClass& TQV7SkinEdit::StaticClass() {
    using C = TQV7SkinEdit;
    static const TMetaClass meta = DefineClass<C>(L"TQV7SkinEdit", TCustomQV7SkinEdit::StaticClass())
                                       .With(AnchorsRow)
                                       .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
                                       .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, true)
                                       .Property(L"Text", &C::GetText, &C::SetText)
                                       .Property(L"PasswordChar", &C::GetPasswordChar, &C::SetPasswordChar, 0)
                                       .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
                                       .Event(L"OnChange", &C::OnChange)
                                       .Event(L"OnClick", &C::OnClick)
                                       .Event(L"OnKeyDown", &C::OnKeyDown)
                                       .Event(L"OnKeyPress", &C::OnKeyPress)
                                       .Event(L"OnKeyUp", &C::OnKeyUp)
                                       .Event(L"OnExit", &C::OnExit);
    return meta;
}

}  // namespace qv7skin
