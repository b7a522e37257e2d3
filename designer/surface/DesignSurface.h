#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "designer/model/DesignDocument.h"
#include "designer/surface/ComponentIcons.h"
#include "designer/surface/DragPicture.h"
#include "designer/surface/Guides.h"
#include "designer/surface/Overlay.h"
#include "platform/vcl/controls/ParentForm.h"

namespace designer {

/// Shows the form of a document and lets the user work on it with mouse and keyboard: choose, place, move,
/// size. The form stands in it as a window with its own frame; the surface is as large as the form and a
/// margin.
class TDesignSurface final : public TCustomControl, public TDesignHook {
public:
    /// Works on the document, which must outlive it.
    TDesignSurface(TComponent* AOwner, TDesignDocument& document);
    ~TDesignSurface() override;

    TSnapping Snapping;
    bool ShowGrid = true;
    /// Nothing on the form can be moved or sized by mouse and keys.
    bool IsLocked = false;
    /// The class that the next press puts on the form; null when a press chooses.
    [[nodiscard]] const TMetaClass* GetTool() const { return FTool; }
    void SetTool(const TMetaClass* value);

    /// Shows what has changed in the document: sizes, choice, icons.
    void UpdateMarks();
    /// Ends a drag and brings everything back to where it was; false when there was none.
    bool CancelDrag();

    /// The tool has been used, and is not wanted again.
    TEvent<void()> OnToolUsed;
    /// The user gave the tool up.
    TEvent<void()> OnToolLeft;
    /// A component, or the form, was clicked twice.
    TEvent<void(TComponent*)> OnOpenItem;
    /// The menu for what is chosen is wanted at that point of the screen.
    TEvent<void(TPoint)> OnMenu;
    /// What the user wanted can't be done, and why. Unbound, the error goes on.
    TEvent<void(const String&)> OnRefused;
    /// A drag is under way: where the leader stands now.
    TEvent<void(const TRect&)> OnDragged;

    bool IsDesignMsg(TControl* sender, TMessage& message) override;
    void Modified() override {}
    void PaintGrid() override;

protected:
    void CreateWnd() override;
    void Dispatch(TMessage& message) override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
    void KeyDown(WORD& key, TShiftState shift) override;

private:
    enum class TDrag { None, Pressed, Moving, Sizing, Band, Placing };

    // What stands where (DesignSurface.cpp); points are client pixels of the form.
    [[nodiscard]] TPoint ToForm(TPoint screen) const { return Root().ScreenToClient(screen); }
    [[nodiscard]] TDesignRoot& Root() const { return FDocument.Root(); }
    [[nodiscard]] TComponent* ItemAt(TPoint point) const;
    [[nodiscard]] TControl& ControlAt(TPoint point) const;
    [[nodiscard]] TRect PlaceInForm(const TComponent& component) const;
    [[nodiscard]] TRect AreaShowing(const TControl& control) const;
    [[nodiscard]] std::optional<int> HandleUnder(TPoint point) const;
    void AdoptRoot();
    void FitToRoot();
    void RootResized();
    [[nodiscard]] bool TakeFrameMessage(TControl* sender, TMessage& message);
    [[nodiscard]] bool WantsMouseItself(TControl* sender, const TMessage& message) const;
    void SetPointer(TPoint point);

    // Dragging (SurfaceDrag.cpp).
    void Press(TPoint point, TShiftState shift);
    void ChooseAt(TPoint point);
    void BeginDrag(TPoint point);
    void Drag(TPoint point);
    void Drop(TPoint point, TShiftState shift);
    void MoveTo(TPoint point);
    void SizeTo(TPoint point);
    void ShowBand(TPoint point);
    void ChooseInBand(bool adding);
    void PlaceTool(TPoint point);
    void CollectMoved();
    void CollectOthers();
    [[nodiscard]] std::vector<TRect> PlacesAround() const;
    [[nodiscard]] TRect GoalOf(const TRect& place) const;
    void BeginPicture();
    void EndPicture(const std::vector<TRect>& places);
    [[nodiscard]] TRect Band(TPoint point) const;
    void Nudge(int dx, int dy, bool sizing);
    void DeleteChosen();
    void Leave();
    void LeadAt(TPoint point, TShiftState shift);

    TDesignDocument& FDocument;
    const TMetaClass* FTool = nullptr;
    TOverlays FHandles;
    TOverlays FMarks;
    TOverlays FBand;
    TDragPicture FPicture;
    TComponentIcons FIcons;

    TDrag FDrag = TDrag::None;
    TPoint FStart;
    TMovingEdges FEdges;
    TRect FLeader;                                      ///< The leader's place when the drag began.
    std::vector<std::pair<TComponent*, TRect>> FMoved;  ///< What moves, and where it stood, in its parent.
    std::vector<TRect> FAround;                         ///< What `PlacesAround` said then.
    TRect FGoal;                                        ///< Where the leader will come to stand.
    std::vector<TRect> FOthers;                         ///< What edges may come to lie on.
};

}  // namespace designer
