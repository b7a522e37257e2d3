#pragma once

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/controls/DragTypes.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/Object.h"

namespace vcl {

class TDragImageList;

/// What is being dragged, from the start of a drag to its end. A control's `OnStartDrag` (or `DoStartDrag`)
/// may supply one; it belongs to whoever made it, who frees it in `OnEndDrag` at the earliest, unless it is
/// one of the `Ex` classes, which the framework frees after the drag. Freeing it sooner cancels the drag.
class TDragObject : public TObject, public TGuarded {
public:
    TDragObject() = default;
    ~TDragObject() override;

    /// True when the framework frees the object after the drag.
    [[nodiscard]] virtual bool GetAutoFree() const { return false; }
    /// What the events of targets get as source: this object.
    [[nodiscard]] virtual TObject* GetSource() { return this; }
    /// Shows and hides the picture that follows the pointer.
    virtual void ShowDragImage();
    virtual void HideDragImage();

    /// The control under the pointer, or null.
    [[nodiscard]] TControl* GetDragTarget() const { return FTarget; }
    /// The pointer in screen pixels, and in client pixels of the target.
    [[nodiscard]] TPoint GetDragPos() const { return FPos; }
    [[nodiscard]] TPoint GetDragTargetPos() const { return FTargetPos; }
    /// Where in the target the pointer is, from 0 (left, top) to 1; 0 without one.
    [[nodiscard]] double GetMouseDeltaX() const { return FDeltaX; }
    [[nodiscard]] double GetMouseDeltaY() const { return FDeltaY; }
    /// True while the end of a drag that does not drop is being told.
    [[nodiscard]] bool GetCancelling() const { return FCancelling; }
    /// True when the drag ended with a drop that was accepted.
    [[nodiscard]] bool GetDropped() const { return FDropped; }

    /// Shows the drag image over every control, not only those with `csDisplayDragImage`. Plain field.
    bool AlwaysShowDragImages = false;

protected:
    friend class TDragSession;
    /// The drag is over. `target` is the control that took the drop, or null; X and Y are its client pixels,
    /// or screen pixels without one.
    virtual void Finished(TControl* target, int x, int y, bool accepted);
    /// The cursor while the target accepts or refuses; X and Y in screen pixels.
    [[nodiscard]] virtual TCursor GetDragCursor(bool accepted, int x, int y);
    /// The images of which the one set with `SetDragImage` follows the pointer; null for none. Not owned.
    [[nodiscard]] virtual TDragImageList* GetDragImages() { return nullptr; }

private:
    TControl* FTarget = nullptr;
    TPoint FPos;
    TPoint FTargetPos;
    double FDeltaX = 0;
    double FDeltaY = 0;
    bool FCancelling = false;
    bool FDropped = false;
};

/// A drag object that the framework frees after the drag.
class TDragObjectEx : public TDragObject {
public:
    [[nodiscard]] bool GetAutoFree() const override { return true; }
};

/// The drag of a control. It tells that control of the end (`DragCanceled`, `OnEndDrag`).
class TBaseDragControlObject : public TDragObject {
public:
    explicit TBaseDragControlObject(TControl* control);
    /// The control that is dragged; null once it is being freed.
    [[nodiscard]] TControl* GetControl() const;

protected:
    void Finished(TControl* target, int x, int y, bool accepted) override;
    /// Tells the control of the end.
    virtual void EndDrag(TControl* target, int x, int y);

private:
    TControl* FControl;
    TLifeGuard FAlive;
};

/// The same with the cursor (`DragCursor`) and the images of the control.
class TDragControlObject : public TBaseDragControlObject {
public:
    using TBaseDragControlObject::TBaseDragControlObject;

protected:
    [[nodiscard]] TCursor GetDragCursor(bool accepted, int x, int y) override;
    [[nodiscard]] TDragImageList* GetDragImages() override;
};

/// A `TDragControlObject` that the framework frees after the drag.
class TDragControlObjectEx : public TDragControlObject {
public:
    using TDragControlObject::TDragControlObject;
    [[nodiscard]] bool GetAutoFree() const override { return true; }
};

}  // namespace vcl
