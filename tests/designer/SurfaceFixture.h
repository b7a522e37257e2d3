#pragma once

#include <memory>

#include "designer/surface/DesignSurface.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/support/FormTest.h"

namespace designer {

/// A form without a frame of 300 x 200 pixels on a surface, with controls on it.
class SurfaceTest : public test::FormTest {
protected:
    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] HWND Window() const { return Document->Root().WindowHandle(); }
    template <class T>
    T& Find(const wchar_t* name) {
        return dynamic_cast<T&>(*Document->Root().FindComponent(name));
    }
    /// The names of what is chosen.
    [[nodiscard]] String Chosen() const;
    /// A point of the form on the screen.
    [[nodiscard]] POINT Screen(int x, int y) const;
    void Drag(TPoint from, TPoint to) { Input.Drag(Screen(from.X, from.Y), Screen(to.X, to.Y)); }

    std::unique_ptr<TDesignDocument> Document;
    TDesignSurface* Surface = nullptr;
    int Menus = 0;
    int ToolsUsed = 0;
    String Opened;
};

}  // namespace designer
