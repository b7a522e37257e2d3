#include "gallery/PaintArea.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"

namespace gallery {

const TMetaClass& TPaintArea::StaticClass() {
    static const TMetaClass meta = DefineClass<TPaintArea>(L"TPaintArea", TCustomControl::StaticClass())
                                       .With(PlacementRows)
                                       .Event(L"OnPaint", &TPaintArea::OnPaint);
    return meta;
}

TPaintArea::TPaintArea(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle.Include(csOpaque);
    SetColor(clWhite);
    SetDoubleBuffered(true);
}

}  // namespace gallery
