#pragma once

#include <memory>

#include "platform/vcl/core/StringList.h"
#include "platform/vcl/stdctrls/Edit.h"

namespace vcl {

/// The editor of the system with several lines.
class TCustomMemo : public TCustomEdit {
public:
    explicit TCustomMemo(TComponent* AOwner);
    ~TCustomMemo() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The text line by line, as it is broken by line ends (not by wrapping); owned by the control.
    [[nodiscard]] TStrings& GetLines() const { return *FLines; }
    void SetLines(const TStrings& value) { FLines->Assign(&value); }
    [[nodiscard]] TScrollStyle GetScrollBars() const { return FScrollBars; }
    void SetScrollBars(TScrollStyle value);
    [[nodiscard]] bool GetWordWrap() const { return FWordWrap; }
    void SetWordWrap(bool value);
    /// Whether Enter makes a new line (true) or is left to the form's default button.
    [[nodiscard]] bool GetWantReturns() const { return FWantReturns; }
    void SetWantReturns(bool value) { FWantReturns = value; }
    /// Whether Tab writes a tabulator or moves the focus.
    [[nodiscard]] bool GetWantTabs() const { return FWantTabs; }
    void SetWantTabs(bool value) { FWantTabs = value; }
    /// Column and line of the insertion mark, both from 0.
    [[nodiscard]] TPoint GetCaretPos() const;
    void SetCaretPos(TPoint value);

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void KeyPress(wchar_t& key) override;
    [[nodiscard]] bool IsMultiLine() const override { return true; }

private:
    std::unique_ptr<TStrings> FLines;
    TScrollStyle FScrollBars = ssNone;
    bool FWordWrap = true;
    bool FWantReturns = true;
    bool FWantTabs = false;
};

/// The editor for forms.
class TMemo : public TCustomMemo {
public:
    using TCustomMemo::TCustomMemo;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
