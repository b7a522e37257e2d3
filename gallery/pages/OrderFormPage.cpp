#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinComboBox.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "inputs/UnitQV7SkinDateTimePicker.h"
#include "inputs/UnitQV7SkinEdit.h"
#include "inputs/UnitQV7SkinGroupBox.h"
#include "inputs/UnitQV7SkinRadioButton.h"
#include "inputs/UnitQV7SkinSpinEdit.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

/// What the shipping field drops down: a choice that writes itself into the field.
class TShippingForm : public TQV7SkinPopupForm {
public:
    explicit TShippingForm(TQV7SkinComboBoxCustomDropDown& field)
        : TQV7SkinPopupForm(nullptr), FField(field) {
        SetClientWidth(190);
        SetClientHeight(92);
        int top = 12;
        for (const wchar_t* text : {L"&Standardversand", L"&Express", L"&Abholung"}) {
            auto* choice = new TQV7SkinRadioButton(this);
            choice->SetParent(this);
            choice->SetBounds(12, top, 160, 17);
            choice->SetCaption(text);
            choice->OnClick = {this, &TShippingForm::Chosen};
            top += 24;
        }
    }

private:
    void Chosen(TObject* sender) {
        const auto& choice = dynamic_cast<TQV7SkinRadioButton&>(*sender);
        if (choice.GetChecked()) FField.SetText(choice.GetCaption().substr(1));
    }

    TQV7SkinComboBoxCustomDropDown& FField;
};

/// An order form of real fields; on the right the same, disabled.
class TOrderFormPage : public TGalleryPage {
public:
    explicit TOrderFormPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        RegisterClasses({&TLabel::StaticClass(), &TQV7SkinCheckBox::StaticClass(),
                         &TQV7SkinComboBox::StaticClass(), &TQV7SkinComboBoxCustomDropDown::StaticClass(),
                         &TQV7SkinDateTimePicker::StaticClass(), &TQV7SkinEdit::StaticClass(),
                         &TQV7SkinGroupBox::StaticClass(), &TQV7SkinRadioButton::StaticClass(),
                         &TQV7SkinSpinEdit::StaticClass(), &TQV7SkinTreeComboBox::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        FShippingForm = std::make_unique<TShippingForm>(*FShipping);
        FShipping->SetDropDownForm(FShippingForm.get());
        FShipping->OnDropDown = {this, &TOrderFormPage::ShippingDropDown};
    }
    ~TOrderFormPage() override { FShipping->SetDropDownForm(nullptr); }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TOrderFormPage>(L"TOrderFormPage", TGalleryPage::StaticClass())
                .Component<&TOrderFormPage::FShipping>(L"ShippingOn")
                .Component<&TOrderFormPage::FDelivery>(L"DeliveryOn")
                .Component<&TOrderFormPage::FCategory>(L"CategoryOn");
        return meta;
    }

    /// At rest, with the tree open, with the calendar open.
    [[nodiscard]] int ShotCount() const override { return 3; }
    void TakeShot(int shot, const std::function<void()>& take) override {
        if (shot == 1) FCategory->GetComboBox()->SetDroppedDown(true);
        if (shot == 2) FDelivery->SetDroppedDown(true);
        TGalleryPage::TakeShot(shot, take);
        if (shot == 1) FCategory->GetComboBox()->SetDroppedDown(false);
        if (shot == 2) FDelivery->GetCalendarForm()->Close();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        UseFont(canvas, 9, true, GetQV7SkinColorColumnHeaderBG());
        canvas.GetBrush().SetStyle(bsClear);
        canvas.TextOut(24, 24, L"Bestellung");
        canvas.TextOut(400, 24, L"Gesperrt");
    }

private:
    void ShippingDropDown(TObject*) {
        FShippingForm->SetAttachedTo(dynamic_cast<TCustomForm*>(GetParentForm(this)));
    }

    TQV7SkinComboBoxCustomDropDown* FShipping = nullptr;
    TQV7SkinDateTimePicker* FDelivery = nullptr;
    TQV7SkinTreeComboBox* FCategory = nullptr;
    std::unique_ptr<TShippingForm> FShippingForm;
};

}  // namespace

TGalleryPage* CreateOrderFormPage(TComponent* owner) {
    return new TOrderFormPage(owner);
}

}  // namespace gallery
