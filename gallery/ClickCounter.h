#pragma once

#include "gallery/Namespace.h"
#include "platform/vcl/stdctrls/Label.h"

namespace gallery {

/// A label that counts the clicks on controls and says which one was the last.
class TClickCounter : public TLabel {
public:
    explicit TClickCounter(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Counts a click on `sender`, which is a control.
    void Count(TObject* sender);

private:
    void ShowCount();
    int FCount = 0;
    String FLast;
};

}  // namespace gallery
