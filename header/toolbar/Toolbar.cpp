#include "header/toolbar/Toolbar.h"

#include "header/chevrons/ToolbarChevron.h"
#include "header/tabs/HoveredTabs.h"
#include "header/toolbar/ToolbarPieces.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {
namespace {

constexpr int RowMargin = 10;

}  // namespace

const TMetaClass& TQV7SkinToolbar::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinToolbar>(L"TQV7SkinToolbar", TQV7SkinHeaderControl::StaticClass());
    return meta;
}

TQV7SkinToolbar::TQV7SkinToolbar(TComponent* AOwner)
    : TQV7SkinHeaderControl(AOwner), FPieces(std::make_shared<TToolbarPieces>()) {
    TQV7SkinHeaderControl::SetHorzOffset(RowMargin);
    TQV7SkinHeaderControl::SetHideClippedItems(true);
    SetBounds(GetLeft(), GetTop(), GetWidth(), FPieces->GetBarBackground().GetHeight());
}

TQV7SkinToolbar::~TQV7SkinToolbar() = default;

void TQV7SkinToolbar::SetIndexOfItemMouseOver(int Index) {
    if (Index != GetIndexOfItemMouseOver()) RenderHoveredTabs(*this, Index);
    TQV7SkinHeaderControl::SetIndexOfItemMouseOver(Index);
}

TQV7SkinHeaderChevronBase* TQV7SkinToolbar::CreateChevron() {
    return new TQV7SkinToolbarChevron(this, FPieces);
}

void TQV7SkinToolbar::DoPaintboxPaint(TObject*, TBitmap* Bitmap) {
    if (GetUpdating()) return;
    FPieces->DrawBar(*Bitmap);
    DrawItems(*Bitmap);
}

void TQV7SkinToolbar::DrawBackground(TBitmap& Bitmap, int State) {
    FPieces->DrawButton(Bitmap, State);
}

}  // namespace qv7skin
