#pragma once

#include <memory>

#include "platform/vcl/controls/DragObject.h"
#include "platform/vcl/controls/Messages.h"

namespace vcl {

class TControl;
class TDragCapture;

/// One drag from `BeginDrag` to its end; the process has at most one. It holds the mouse through a window of
/// its own, follows the pointer, asks the controls below it by CM_DRAG and tells them of the drop.
///
/// Everything that it calls may end the drag or free the control, the target and the drag object. Ended
/// sessions stay until the last call that runs in them has returned.
class TDragSession : public std::enable_shared_from_this<TDragSession> {
public:
    ~TDragSession();
    TDragSession(const TDragSession&) = delete;
    TDragSession& operator=(const TDragSession&) = delete;

    /// The session that is under way, or null.
    [[nodiscard]] static std::shared_ptr<TDragSession> Current();
    /// Begins one for the control, unless one is under way. With `immediate` the drag is on at once,
    /// otherwise after the pointer moved `threshold` pixels.
    static void Begin(TControl& control, bool immediate, int threshold);

    /// The control on which `BeginDrag` was called; null after it was freed.
    [[nodiscard]] TControl* GetControl() const { return FControl; }
    [[nodiscard]] TDragObject* GetObject() const { return FObject; }
    /// True from the first to the last drag-over; false while waiting for the threshold and at the end.
    [[nodiscard]] bool IsActive() const { return FPhase == TPhase::Active; }
    /// Ends the drag, with a drop when the target accepts.
    void End(bool drop);
    /// Asks the target again.
    void Repeat();
    /// A message of the window that holds the mouse.
    void MouseMessage(const TMessage& message);
    /// A key message of the queue; true when it was used.
    bool KeyMessage(const MSG& message);
    void ForgetControl(const TControl& control);
    void ForgetObject(const TDragObject& object);

private:
    enum class TPhase { Starting, Waiting, Active, Finishing, Over };

    TDragSession(TControl& control, int threshold);
    void ReleasePress(bool immediate);
    void ChooseObject();
    void Start(bool immediate);
    void Activate();
    void Follow(TPoint pos);
    void ChangeTarget(TControl* target, HWND window);
    [[nodiscard]] static TControl* FindTarget(TPoint pos, HWND& window);
    bool Ask(TDragMessage message);
    void PlaceTargetPos();
    void ShowCursor(bool accepted);
    void MoveImage();
    void LetGo();
    void Finish(bool accepted);
    [[nodiscard]] bool Goes() const { return FPhase == TPhase::Waiting || FPhase == TPhase::Active; }

    TControl* FControl;
    TDragObject* FObject = nullptr;
    TPhase FPhase = TPhase::Starting;
    int FThreshold;
    UINT FRelease = WM_NULL;  ///< The release that drops; WM_NULL: any.
    TPoint FStart;
    TPoint FPos;
    TControl* FTarget = nullptr;
    HWND FTargetWindow = nullptr;
    HCURSOR FFormerCursor = nullptr;
    bool FHasImage = false;  ///< The image list shows one.
    std::unique_ptr<TDragCapture> FCapture;
};

/// The drag object is being freed.
void ForgetDragObject(const TDragObject& object);
/// The control is being freed.
void ForgetDraggedControl(const TControl& control);
/// Lets a drag that is under way see the key message first; true when it was used.
[[nodiscard]] bool OfferKeyToDrag(const MSG& message);

}  // namespace vcl
