#include "platform/vcl/forms/ApplicationEvents.h"

#include <algorithm>

#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/core/DefineClass.h"

// The events of the application, raised for all who hear them.

namespace vcl {

const TMetaClass& TApplicationEvents::StaticClass() {
    using C = TApplicationEvents;
    static const TMetaClass meta = DefineClass<C>(L"TApplicationEvents", TComponent::StaticClass())
                                       .Event(L"OnActionExecute", &C::OnActionExecute)
                                       .Event(L"OnActionUpdate", &C::OnActionUpdate)
                                       .Event(L"OnActivate", &C::OnActivate)
                                       .Event(L"OnDeactivate", &C::OnDeactivate)
                                       .Event(L"OnException", &C::OnException)
                                       .Event(L"OnHint", &C::OnHint)
                                       .Event(L"OnIdle", &C::OnIdle)
                                       .Event(L"OnMessage", &C::OnMessage)
                                       .Event(L"OnMinimize", &C::OnMinimize)
                                       .Event(L"OnModalBegin", &C::OnModalBegin)
                                       .Event(L"OnModalEnd", &C::OnModalEnd)
                                       .Event(L"OnRestore", &C::OnRestore)
                                       .Event(L"OnSettingChange", &C::OnSettingChange)
                                       .Event(L"OnShortCut", &C::OnShortCut)
                                       .Event(L"OnShowHint", &C::OnShowHint);
    return meta;
}

TApplicationEvents::TApplicationEvents(TComponent* AOwner) : TComponent(AOwner) {
    Application().FHearers.push_back(this);
}

TApplicationEvents::~TApplicationEvents() {
    std::erase(Application().FHearers, this);
}

template <class Raise>
bool TApplication::RaiseAll(Raise raise) {
    // By a copy, and asking before each one: a handler may make or free hearers.
    const std::vector<TApplicationEvents*> hearers = FHearers;
    for (auto each = hearers.rbegin(); each != hearers.rend(); ++each) {
        if (std::ranges::find(FHearers, *each) != FHearers.end() && raise(**each)) return true;
    }
    return raise(*this);
}

void TApplication::Notify(TNotifyEvent TApplicationEventSet::*event) {
    RaiseAll([event](auto& hearer) {
        (hearer.*event)(&hearer);
        return false;
    });
}

void TApplication::RaiseActive(bool active) {
    if (active)
        Notify(&TApplicationEventSet::OnActivate);
    else
        Notify(&TApplicationEventSet::OnDeactivate);
}

void TApplication::RaiseMinimized(bool minimized) {
    if (minimized)
        Notify(&TApplicationEventSet::OnMinimize);
    else
        Notify(&TApplicationEventSet::OnRestore);
}

void TApplication::RaiseModal(bool begins) {
    if (begins)
        Notify(&TApplicationEventSet::OnModalBegin);
    else
        Notify(&TApplicationEventSet::OnModalEnd);
}

void TApplication::RaiseHint() {
    Notify(&TApplicationEventSet::OnHint);
}

void TApplication::RaiseSettingChange() {
    Notify(&TApplicationEventSet::OnSettingChange);
}

bool TApplication::RaiseException(TObject* sender, const std::exception& error) {
    bool heard = false;
    RaiseAll([&](auto& hearer) {
        heard = heard || hearer.OnException.IsAssigned();
        hearer.OnException(sender, error);
        return false;
    });
    return heard;
}

void TApplication::RaiseIdle(bool& done) {
    RaiseAll([&](auto& hearer) {
        bool doneHere = true;
        hearer.OnIdle(this, doneHere);
        done = done && doneHere;
        return false;
    });
}

bool TApplication::RaiseMessage(MSG& message) {
    return RaiseAll([&](auto& hearer) {
        bool handled = false;
        hearer.OnMessage(message, handled);
        return handled;
    });
}

void TApplication::RaiseShowHint(String& text, bool& canShow, THintInfo& info) {
    RaiseAll([&](auto& hearer) {
        hearer.OnShowHint(text, canShow, info);
        return false;
    });
}

bool TApplication::RaiseShortCut(TMessage& message) {
    return RaiseAll([&](auto& hearer) {
        bool handled = false;
        hearer.OnShortCut(message, handled);
        return handled;
    });
}

bool TApplication::ExecuteAction(TBasicAction* action) {
    return RaiseAll([&](auto& hearer) {
        bool handled = false;
        hearer.OnActionExecute(action, handled);
        return handled;
    });
}

bool TApplication::UpdateAction(TBasicAction* action) {
    return RaiseAll([&](auto& hearer) {
        bool handled = false;
        hearer.OnActionUpdate(action, handled);
        return handled;
    });
}

}  // namespace vcl
