#pragma once

#include "gallery/Namespace.h"
#include "platform/vcl/controls/Control.h"
#include "platform/vcl/stdctrls/Label.h"

namespace gallery {

/// A label that counts the clicks on the controls that it is bound to, and says which one was the last.
class TClickCounter : public TLabel {
public:
    explicit TClickCounter(TComponent* AOwner) : TLabel(AOwner) { ShowCount(); }
    void CountClicksOf(TControl& control) { control.OnClick = {this, &TClickCounter::Clicked}; }

private:
    void Clicked(TObject* sender) {
        ++FCount;
        FLast = static_cast<TControl*>(sender)->GetCaption();
        ShowCount();
    }
    void ShowCount() {
        SetCaption(L"Klicks: " + IntToStr(FCount) + (FCount > 0 ? L", zuletzt „" + FLast + L"“" : String()));
    }
    int FCount = 0;
    String FLast;
};

}  // namespace gallery
