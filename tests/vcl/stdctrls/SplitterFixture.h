#pragma once

#include <string>

#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/Splitter.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {

/// A form of 400 x 300 pixels with a panel of 100 pixels at one edge, a splitter of class `Splitter` behind
/// it and a panel in the rest; and a user who drags.
template <class Splitter>
class SplitterFixture : public FormTest {
protected:
    static bool IsUpright(vcl::TAlign align) { return align == vcl::alLeft || align == vcl::alRight; }
    static bool GrowsAhead(vcl::TAlign align) { return align == vcl::alLeft || align == vcl::alTop; }

    /// A panel of that size at the edge, inside of what already stands there.
    vcl::TPanel* AddPanel(vcl::TAlign align, int size) {
        auto* panel = new vcl::TPanel(nullptr);
        panel->SetBevelOuter(vcl::bvNone);
        panel->SetBoundsRect(InnerPlace(align, size));
        panel->SetAlign(align);
        panel->SetParent(&Form());
        return panel;
    }
    Splitter* AddSplitter(vcl::TAlign align) {
        auto* splitter = new Splitter(nullptr);
        splitter->SetAlign(align);
        splitter->SetBoundsRect(InnerPlace(align, 3));
        splitter->SetParent(&Form());
        return splitter;
    }
    void Build(vcl::TAlign align) {
        Align = align;
        Side = AddPanel(align, 100);
        Bar = AddSplitter(align);
        Rest = AddPanel(vcl::alClient, 10);
        PumpAll();
    }
    /// The size that the splitter changes.
    [[nodiscard]] int SizeOf(const vcl::TControl& control) const {
        return IsUpright(Align) ? control.GetWidth() : control.GetHeight();
    }
    [[nodiscard]] int ParentSize() { return IsUpright(Align) ? 400 : 300; }

    /// The screen point in the middle of the bar, moved so that the control grows by `growth`.
    [[nodiscard]] POINT Grip(const Splitter& bar, int growth = 0) {
        const vcl::TRect r = bar.GetBoundsRect();
        const int way = GrowsAhead(Align) ? growth : -growth;
        const vcl::TPoint p = Form().ClientToScreen({(r.Left + r.Right) / 2 + (IsUpright(Align) ? way : 0),
                                                     (r.Top + r.Bottom) / 2 + (IsUpright(Align) ? 0 : way)});
        return {p.X, p.Y};
    }
    void PressOn(const Splitter& bar) {
        Input.MoveTo(Grip(bar));
        Input.Press();
    }
    /// Drags the bar so that the control behind it grows by that many pixels, and releases.
    void Drag(const Splitter& bar, int growth) {
        const POINT to = Grip(bar, growth);
        PressOn(bar);
        Input.MoveTo(to);
        Input.Release();
    }
    [[nodiscard]] Pixels Shown() { return ReadClient(Form().WindowHandle()); }

    vcl::TAlign Align = vcl::alLeft;
    vcl::TPanel* Side = nullptr;
    Splitter* Bar = nullptr;
    vcl::TPanel* Rest = nullptr;

private:
    /// A place whose edge lies inside of all controls that stand there, and outside of the middle.
    [[nodiscard]] vcl::TRect InnerPlace(vcl::TAlign align, int size) {
        int taken = 0;
        for (int i = 0; i < Form().GetControlCount(); ++i) {
            const vcl::TControl& control = *Form().GetControl(i);
            if (control.GetAlign() == align)
                taken += IsUpright(align) ? control.GetWidth() : control.GetHeight();
        }
        switch (align) {
            case vcl::alLeft:
                return vcl::TRect::OfSize(taken, 0, size, 300);
            case vcl::alRight:
                return vcl::TRect::OfSize(400 - taken - size, 0, size, 300);
            case vcl::alTop:
                return vcl::TRect::OfSize(0, taken, 400, size);
            default:
                return vcl::TRect::OfSize(0, 300 - taken - size, 400, size);
        }
    }
};

inline constexpr vcl::TAlign SplitterAligns[] = {vcl::alLeft, vcl::alRight, vcl::alTop, vcl::alBottom};

inline std::string AlignName(vcl::TAlign align) {
    return vcl::ToUtf8(vcl::TEnumNames<vcl::TAlign>::Names()[static_cast<std::size_t>(align)]);
}

}  // namespace test
