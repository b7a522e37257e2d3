#include "platform/vcl/controls/AccessibleControl.h"

#include <wrl/client.h>

namespace vcl {
namespace {

template <class T>
using TComPtr = Microsoft::WRL::ComPtr<T>;

/// The accessible object of a control: what the system says of every window, and over it what the control
/// says of itself. It may outlive the control.
class TAccessibleObject final : public IAccessible {
public:
    TAccessibleObject(TWinControl& control, TAccessibleControl& accessible, TComPtr<IAccessible> standard)
        : FStandard(std::move(standard)), FAccessible(accessible), FControlLives(control) {}
    virtual ~TAccessibleObject() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch) && id != __uuidof(IAccessible))
            return E_NOINTERFACE;
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override {
        return static_cast<ULONG>(::InterlockedIncrement(&FReferences));
    }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = ::InterlockedDecrement(&FReferences);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    // --- what the control says
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        return GiveText(child, &TAccessibleFacts::Name, name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return GiveText(child, &TAccessibleFacts::Value, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return GiveText(child, &TAccessibleFacts::Action, action);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        return Facts(child, [&](const TAccessibleFacts& facts) {
            role->vt = VT_I4;
            role->lVal = facts.Role;
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        return Facts(child, [&](const TAccessibleFacts& facts) {
            const HRESULT result = FStandard->get_accState(child, state);
            if (FAILED(result) || state->vt != VT_I4) return result;
            state->lVal |= facts.State;
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        return Facts(child, [&](const TAccessibleFacts& facts) {
            if (facts.Action.empty()) return DISP_E_MEMBERNOTFOUND;
            FAccessible.DoAccessibleAction();
            return S_OK;
        });
    }

    // --- what the system says
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return FStandard->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
        return FStandard->get_accChildCount(count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT which, IDispatch** child) override {
        return FStandard->get_accChild(which, child);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
        return FStandard->get_accDescription(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) override {
        return FStandard->get_accHelp(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return FStandard->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* key) override {
        return FStandard->get_accKeyboardShortcut(child, key);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return FStandard->get_accFocus(child); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        return FStandard->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return FStandard->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override {
        return FStandard->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return FStandard->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
        return FStandard->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

    // --- calls by name
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return FStandard->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return FStandard->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return FStandard->GetIDsOfNames(id, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return E_NOTIMPL;
    }

private:
    /// Asks the control and hands its facts on. No error leaves an accessible object.
    template <class Use>
    HRESULT Facts(const VARIANT& child, Use use) {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return E_INVALIDARG;
        if (!FControlLives.IsAlive()) return CO_E_OBJNOTCONNECTED;
        try {
            return use(FAccessible.GetAccessibleFacts());
        } catch (...) {
            return E_FAIL;
        }
    }
    HRESULT GiveText(const VARIANT& child, String TAccessibleFacts::*field, BSTR* text) {
        *text = nullptr;
        return Facts(child, [&](const TAccessibleFacts& facts) -> HRESULT {
            const String& value = facts.*field;
            if (value.empty()) return S_FALSE;
            *text = ::SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
            return *text ? S_OK : E_OUTOFMEMORY;
        });
    }

    TComPtr<IAccessible> FStandard;
    TAccessibleControl& FAccessible;
    TLifeGuard FControlLives;
    LONG FReferences = 1;
};

}  // namespace

bool AnswerGetObject(TWinControl& control, TAccessibleControl& accessible, TMessage& message) {
    if (message.Msg != WM_GETOBJECT || static_cast<LONG>(message.LParam) != OBJID_CLIENT) return false;
    TComPtr<IAccessible> standard;
    const HRESULT made = ::CreateStdAccessibleObject(control.GetHandle(), OBJID_CLIENT, __uuidof(IAccessible),
                                                     reinterpret_cast<void**>(standard.GetAddressOf()));
    if (FAILED(made)) return false;
    TComPtr<IAccessible> object;
    object.Attach(new TAccessibleObject(control, accessible, std::move(standard)));
    message.Result = ::LresultFromObject(__uuidof(IAccessible), message.WParam, object.Get());
    return true;
}

void NotifyAccessible(const TWinControl& control, DWORD event) {
    if (control.HandleAllocated())
        ::NotifyWinEvent(event, control.WindowHandle(), OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace vcl
