#pragma once

#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Image.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The designed half of a popup form: a window without a border that belongs to another form, with three
/// small buttons at its top right that close it, detach it into a tool window with a border ("exclude"), and
/// put it back ("include").
///
/// At run time each new window hides the three buttons; `ShowAllButtons` brings the close button back. A
/// descendant that wants the other two shows them itself.
class TfrmQV7SkinPopupFormBase : public TForm {
public:
    /// An owner that is a form is what the popup is attached to.
    explicit TfrmQV7SkinPopupFormBase(TComponent* AOwner);
    ~TfrmQV7SkinPopupFormBase() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The three buttons, from the form's file; owned by the form.
    TImage* imgCloseWindow = nullptr;
    TImage* imgExcludeWindow = nullptr;
    TImage* imgIncludeWindow = nullptr;

    /// The form above which the popup's window lies; not owned, null for none.
    [[nodiscard]] TCustomForm* GetAttachedTo() const { return FAttachedTo; }
    /// Also makes the window anew, since a window keeps its owner for life.
    void SetAttachedTo(TCustomForm* Value);
    /// Whether the Escape key closes the form; true at first.
    [[nodiscard]] bool GetCloseOnEscape() const { return FCloseOnEscape; }
    void SetCloseOnEscape(bool Value) { FCloseOnEscape = Value; }

    /// Raised after the form got its border (exclude) or lost it (include) by its buttons.
    TNotifyEvent OnIncludeWindowClick;
    TNotifyEvent OnExcludeWindowClick;

    /// Whether the close button shows.
    [[nodiscard]] bool GetShowCloseButton() const;
    void SetShowCloseButton(bool Value);
    /// True while both the exclude and the include button show.
    [[nodiscard]] bool GetShowIncludeExcludeButtons() const;
    /// Hides both buttons, whatever the value says: they are shown one by one, by whoever wants them.
    void SetShowIncludeExcludeButtons(bool Value);

    /// True while the form has the border of a tool window: it is detached then.
    [[nodiscard]] virtual bool GetShowBorder() const;
    /// Gives the form the sizing border of a tool window, or takes it away; the client height stays.
    virtual void SetShowBorder(bool Value);
    virtual void DoIncludeWindowClick();
    virtual void DoExcludeWindowClick();
    virtual void HideAllButtons();
    /// Shows the close button; the other two stay hidden.
    virtual void ShowAllButtons();

    // What the buttons of the form's file call.
    void imgCloseWindowClick(TObject* Sender);
    void imgExcludeWindowClick(TObject* Sender);
    void imgIncludeWindowClick(TObject* Sender);

protected:
    void Notification(TComponent* component, TOperation operation) override;
    void CreateParams(TCreateParams& params) override;
    [[nodiscard]] HWND GetOwnerWindow() const override;
    [[nodiscard]] TRect GetFrameInsets() const override;
    void KeyPress(wchar_t& key) override;

private:
    TCustomForm* FAttachedTo = nullptr;
    bool FCloseOnEscape = true;
};

}  // namespace qv7skin
