#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/stdctrls/Edit.h"

namespace designer {

/// A line editor in a table or list. Enter and Esc end the editing there, and do not press buttons of its
/// window.
class TValueEdit final : public TEdit {
public:
    /// Without a frame, hidden, a part of `owner`.
    explicit TValueEdit(TWinControl& owner);

protected:
    void CreateWnd() override;
    void Dispatch(TMessage& message) override;
};

}  // namespace designer
