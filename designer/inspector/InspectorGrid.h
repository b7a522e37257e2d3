#pragma once

#include <functional>

#include "designer/inspector/PropertyList.h"
#include "platform/vcl/controls/CustomControl.h"

namespace qv7skin {
class TQV7SkinPopupMenu;
}

namespace vcl {
struct THintInfo;
}

namespace designer {

class TValueEdit;
class TValueList;

/// The lines of a property list as a table of names and values, to be edited in place. As high as all lines;
/// it stands in a control that scrolls.
class TInspectorGrid : public TCustomControl {
public:
    /// Height of a line in pixels.
    static constexpr int LineHeight = 20;

    explicit TInspectorGrid(TComponent* AOwner);
    ~TInspectorGrid() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Shows the list, which is not owned and must outlive the grid or be replaced by null before it ends.
    void SetList(TPropertyList* list);
    /// Shows the lines as they are now; the chosen one stays chosen when it is still there.
    void UpdateLines();
    /// The path of the line that is being edited; empty for none.
    [[nodiscard]] const String& GetChosenPath() const { return FChosen; }
    void Choose(const String& path);
    /// Brings the focus to the value of the chosen line, of the first one when there is none.
    void FocusEditor();
    /// Takes over what stands in the editor. What can't be goes to `OnRefused` and the old value comes back.
    void Accept();
    [[nodiscard]] TRect LineRect(int index) const;
    /// From here on to the right stand the values.
    [[nodiscard]] int ValueLeft() const { return GetWidth() * 45 / 100; }

    /// A typed value was refused, and why.
    TEvent<void(const String&)> OnRefused;
    /// A value is to be edited in a window of its own (`EditValue`).
    TEvent<void(const TPropertyLine&)> OnEditValue;

protected:
    void Paint() override;
    void Dispatch(TMessage& message) override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void DblClick() override;
    void Resize() override;

private:
    [[nodiscard]] int IndexOfChosen() const;
    [[nodiscard]] const TPropertyLine* ChosenLine() const;
    void DrawLine(int index);
    void DrawExpander(const TRect& box, bool isExpanded);
    void PlaceEditor();
    void EditorKeyDown(TObject* sender, WORD& key, TShiftState shift);
    void EditorExit(TObject* sender);
    void ChooseBy(int delta);
    void DropDown();
    [[nodiscard]] TValueList& Values();
    void TakeValue(const String& text);
    void EditorDblClick(TObject* sender);
    void EditorMouseDown(TObject* sender, TMouseButton button, TShiftState shift, int x, int y);
    void OpenOrTurn();
    void ShowHint(THintInfo& info) const;
    void ShowMenu(TPoint place);
    void AddToMenu(const wchar_t* caption, bool isEnabled, std::function<void()> command);
    void ResetChosen();
    void Try(const std::function<void(const String& path)>& change);
    void SetValue(const String& text);
    [[nodiscard]] TRect ButtonRect(int index) const;
    [[nodiscard]] bool HasButton(const TPropertyLine& line) const;

    TPropertyList* FList = nullptr;
    String FChosen;
    TValueEdit* FEditor;
    TQV7SkinPopupMenu* FMenu;
    TValueList* FValues = nullptr;  ///< Made when it is first needed.
    DWORD FPressTime = 0;           ///< When a line was last pressed, by the clock of messages.
    bool FAccepting = false;
};

}  // namespace designer
