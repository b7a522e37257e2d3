#pragma once

#include <memory>

#include "platform/vcl/stdctrls/Splitter.h"
#include "skin/Namespace.h"

/// The splitter of the skin.
namespace qv7skin {

class TQV7SkinSplitter;

/// Pixels; 0 is no limit, and so are negative values.
using TQV7SkinSplitterConstraintSize = int;

/// The least sizes of the areas on both sides of a splitter, in pixels. `Left` and `Right` count for one that
/// stands upright, `Top` and `Bottom` for one that lies.
class TQV7SkinSplitterSizeConstraints : public TPersistent {
public:
    /// `Splitter` is whose constraints these are, or null.
    explicit TQV7SkinSplitterSizeConstraints(TQV7SkinSplitter* Splitter) : FSplitter(Splitter) {}
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TQV7SkinSplitterConstraintSize GetLeft() const { return FSizes[0]; }
    void SetLeft(TQV7SkinSplitterConstraintSize Value) { SetConstraints(0, Value); }
    [[nodiscard]] TQV7SkinSplitterConstraintSize GetRight() const { return FSizes[1]; }
    void SetRight(TQV7SkinSplitterConstraintSize Value) { SetConstraints(1, Value); }
    [[nodiscard]] TQV7SkinSplitterConstraintSize GetTop() const { return FSizes[2]; }
    void SetTop(TQV7SkinSplitterConstraintSize Value) { SetConstraints(2, Value); }
    [[nodiscard]] TQV7SkinSplitterConstraintSize GetBottom() const { return FSizes[3]; }
    void SetBottom(TQV7SkinSplitterConstraintSize Value) { SetConstraints(3, Value); }

    [[nodiscard]] TQV7SkinSplitter* GetSplitter() const { return FSplitter; }
    [[nodiscard]] TPersistent* GetOwner() const override;

    /// Raised after a size changed, once when all are assigned.
    TNotifyEvent OnChange;

protected:
    void AssignTo(TPersistent* Dest) const override;
    virtual void Change();

private:
    void SetConstraints(int Index, TQV7SkinSplitterConstraintSize Value);

    TQV7SkinSplitter* FSplitter;
    TQV7SkinSplitterConstraintSize FSizes[4] = {};  ///< Left, right, top, bottom.
};

/// A splitter that keeps a least size on both of its sides. Where both can't be kept, the right and the
/// lower side have theirs. `AutoSnap` still shuts a control whose least size is not above `MinSize`.
class TQV7SkinSplitter : public TSplitter {
public:
    explicit TQV7SkinSplitter(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TQV7SkinSplitterSizeConstraints& GetMinConstraints() const { return *FMinConstraints; }
    void SetMinConstraints(const TQV7SkinSplitterSizeConstraints& Value) { FMinConstraints->Assign(&Value); }

protected:
    bool DoCanResize(int& NewSize) override;

private:
    void DoMinConstraintsChange(TObject*) {}

    std::unique_ptr<TQV7SkinSplitterSizeConstraints> FMinConstraints;
};

}  // namespace qv7skin
