#pragma once

#include <string>
#include <utility>

#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/DragObject.h"
#include "platform/vcl/controls/Mouse.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {

/// A form with something to drag on the left and something to drop it on to the right.
class DragTest : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        Source = Make<TProbeWindow>({10, 10, 110, 60});
        Target = Make<TProbeWindow>({200, 10, 300, 60});
        Source->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) {
            Seen.push_back("down");
            Source->BeginDrag(Immediate, Threshold);
        };
        Source->OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Seen.push_back("up"); };
        Source->OnClick = [this](TObject*) { Seen.push_back("click"); };
        Source->OnEndDrag = [this](TObject*, TObject* target, int x, int y) {
            Seen.push_back("end " + NameOf(target));
            EndedAt = {x, y};
        };
        Input.MoveTo(Source->WindowHandle(), 20, 20);
    }

    /// Lets the control answer as `Accepts` says and notes what it is asked.
    void MakeTarget(TControl* control) {
        control->OnDragOver = [this, control](TObject*, TObject* source, int x, int y, TDragState state,
                                              bool& accept) {
            constexpr const char* states[] = {"enter", "leave", "move"};
            Seen.push_back(NameOf(control) + " " + states[static_cast<int>(state)]);
            Dragged = source;
            Over = {x, y};
            accept = Accepts;
        };
        control->OnDragDrop = [this, control](TObject*, TObject* source, int x, int y) {
            Seen.push_back(NameOf(control) + " drop");
            Dragged = source;
            DroppedAt = {x, y};
        };
    }
    [[nodiscard]] std::string NameOf(const TObject* object) const {
        if (!object) return "nowhere";
        if (object == Source) return "source";
        return object == Target ? "target" : "other";
    }
    [[nodiscard]] Log Taken() { return std::exchange(Seen, {}); }
    void Press() {
        Input.MoveTo(Source->WindowHandle(), 20, 20);
        Input.Press();
    }

    TProbeWindow* Source = nullptr;
    TProbeWindow* Target = nullptr;
    bool Immediate = true;
    int Threshold = -1;
    bool Accepts = true;
    Log Seen;
    TObject* Dragged = nullptr;
    TPoint Over;
    TPoint DroppedAt;
    TPoint EndedAt;
};

/// Counts its ends and says which cursor to show.
class TNotedDrag : public TBaseDragControlObject {
public:
    using TBaseDragControlObject::TBaseDragControlObject;
    int Ends = 0;
    bool Accepted = false;
    TCursor Cursor = crDefault;
    TDragImageList* Images = nullptr;

protected:
    void Finished(TControl* target, int x, int y, bool accepted) override {
        ++Ends;
        Accepted = accepted;
        TBaseDragControlObject::Finished(target, x, y, accepted);
    }
    TCursor GetDragCursor(bool accepted, int x, int y) override {
        return Cursor != crDefault ? Cursor : TBaseDragControlObject::GetDragCursor(accepted, x, y);
    }
    TDragImageList* GetDragImages() override { return Images; }
};

}  // namespace test
