#pragma once

#include "platform/vcl/controls/ScrollingWinControl.h"

namespace vcl {

/// A frame whose children may lie further out than it is large: scroll bars appear where they are needed.
class TScrollBox : public TScrollingWinControl {
public:
    explicit TScrollBox(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle value);

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    [[nodiscard]] TRect GetFrameInsets() const override;

private:
    TBorderStyle FBorderStyle = bsSingle;
};

}  // namespace vcl
