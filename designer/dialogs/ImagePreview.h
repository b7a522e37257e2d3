#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/graphics/ImageList.h"

namespace designer {

/// Shows one image of a list as large as it can in whole steps, on a chequered ground that shows where it is
/// transparent.
class TImagePreview final : public TCustomControl {
public:
    /// The list must outlive the control's painting.
    TImagePreview(TComponent* AOwner, const TCustomImageList& images);
    /// An index outside of the list shows nothing.
    void SetIndex(int value);

protected:
    void Paint() override;

private:
    void PaintGround(TCanvas& canvas) const;

    const TCustomImageList& FImages;
    int FIndex = -1;
};

}  // namespace designer
